// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef MANUAL_H
#define MANUAL_H

#include "doc/moduletable.h"

#include <QByteArray>
#include <QMap>

/// What the user asked for, the same in every language.
struct Manual
{
    QString title; ///< Empty for that of the tool.
    QString nameSpace; ///< By which Qt Help tells manuals apart.
    QStringList languages; ///< The first is the one whose files have plain names.
    QVector<AUTH_INF> items;
};

/// A module in the language of the program, with the names of its page and of the places in it.
/// These are made from plain texts, so that they are the same in every language.
struct ManualModule
{
    AUTH_INF item;
    QString title;
    QString page; ///< Of its file, without an ending.
    QVector<ItemTableMode> modes;
    PrintedTable parameters;
    PrintedTable results;
    QStringList modeIds;
    QStringList parameterIds;
    QStringList resultIds;
};

/// Modules that are listed together.
struct ManualGroup
{
    QString title;
    QVector<int> modules;
};

/// The manual in one language, which has to be that of the program while this is made and used.
class ManualView
{
public:
    ManualView(const Manual &manual, const QString &language);

    const Manual &manual() const { return m_manual; }
    const QString &language() const { return m_language; }
    const QString &title() const { return m_title; }
    const QVector<ManualModule> &modules() const { return m_modules; }
    const QVector<ManualGroup> &groups() const { return m_groups; }

    /// Name of the file of a @p page with this @p ending, ".html" for example.
    QString file(const QString &page, const QString &ending) const;
    /// The same in another language of the manual.
    QString file(const QString &page, const QString &ending, const QString &inLanguage) const;

private:
    const Manual &m_manual;
    QString m_language;
    QString m_title;
    QVector<ManualModule> m_modules;
    QVector<ManualGroup> m_groups;
};

/// Contents by name of file, without a directory.
using ManualFiles = QMap<QString, QByteArray>;

/// Stands near the beginning of every file of a manual, and tells them from files of others.
constexpr char manualMark[] = "Written by kelto doc";

/// The stem of the page that lists all modules.
QString indexPage();

/// @p text without what neither XML nor a file in UTF-8 can hold.
QString printable(const QString &text);

ManualFiles htmlFiles(const ManualView &view);
/// What the pages of all languages use.
ManualFiles htmlAssets();
/// The names of both.
QStringList htmlFileNames(const ManualView &view);
ManualFiles markdownFiles(const ManualView &view);
/// The project for Qt Help, which lists the HTML files as well.
ManualFiles helpProject(const ManualView &view);
/// What the search of the pages looks through, as a script.
QByteArray searchIndex(const ManualView &view);

#endif
