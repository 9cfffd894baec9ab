// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef LANGUAGES_H
#define LANGUAGES_H

#include <QStringList>
#include <QVector>

class AUTH_INF;
class AUTH_SET;
class QLocale;

/// The names of the locales whose languages the program speaks.
QStringList languageNames();

/// Installs the translations for the language of @p locale in place of those installed before;
/// texts without one stay English. Windows are told by an event QEvent::LanguageChange.
void installTranslations(const QLocale &locale);

/// Does that, and gives @p registry the modules @p modules with their texts in the language; what
/// is selected stays selected.
void useLanguage(const QLocale &locale, AUTH_SET *registry, QVector<AUTH_INF> modules);

#endif
