// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MODULES_H
#define MODULES_H

#include "calculations/outcome.h"

#include <QString>
#include <QVector>

class AUTH_INF;
class AUTH_SET;
class QLocale;

// The calculation modules of the workbench, and the language of their texts. Each is described in
// a file of the directory "modules", with which the program is built; others are read from files.

/// The modules of the files "*.ini" in @p directory, in the order of the file names; or a message
/// that says what is wrong with which file.
Outcome<QVector<AUTH_INF>> modulesFromFiles(const QString &directory);

/// The modules of the files that the program was built with.
QVector<AUTH_INF> compiledModules();

/// Installs the translations for the language of @p locale in place of those installed before;
/// texts without one stay English. Windows are told by an event QEvent::LanguageChange.
void installTranslations(const QLocale &locale);

/// Does that, and gives @p registry the modules @p modules with their texts in the language. Which
/// modes were selected is lost.
void useLanguage(const QLocale &locale, AUTH_SET *registry, QVector<AUTH_INF> modules);

#endif
