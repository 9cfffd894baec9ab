<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: The Kelto developers -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
</TS>
