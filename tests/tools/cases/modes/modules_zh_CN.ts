<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context><name>UCal</name>
<message><source>Statics</source><translation>静力学</translation></message>
<message><source>Cantilever</source><translation>悬臂梁</translation></message>
</context>
<context><name>Command</name>
<message><source>Standard name</source><translation>no text of a module</translation></message>
</context>
</TS>
