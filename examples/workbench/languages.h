// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef LANGUAGES_H
#define LANGUAGES_H

class QLocale;

/// Lets the program speak the language of @p locale, as far as there is a translation; whatever has
/// none stays English. To be called once, after the QApplication was made and before anything else.
void installTranslations(const QLocale &locale);

#endif
