// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef LANGUAGES_H
#define LANGUAGES_H

class QLocale;

/// Installs the translations for the language of @p locale; texts without one stay English. To be
/// called once, after the QApplication was made and before any text is looked up.
void installTranslations(const QLocale &locale);

#endif
