// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef DOCUMENT_H
#define DOCUMENT_H

#include "core/inireader_p.h"

#include <QByteArray>
#include <QStringList>
#include <QVector>

/// Lines of comments with their signs in front; an empty one is a blank line between them.
using Comments = QVector<QByteArray>;

struct DocumentEntry
{
    QString name;
    QStringList value; ///< The elements of a list; one for a plain text.
    Comments before;
    QByteArray beside; ///< A comment on the same line.
    bool startsGroup = false; ///< Set apart by a blank line.
};

struct DocumentSection
{
    QString name; ///< Empty for the keys without a section.
    Comments before;
    QByteArray beside;
    Comments intro; ///< Behind the header, about the section as a whole.
    QVector<DocumentEntry> entries;
    Comments behind; ///< Behind the last key.
};

/// An item file with its comments, without its spelling and layout.
struct Document
{
    Comments top; ///< In front of everything, about the file as a whole.
    QVector<DocumentSection> sections;
    Comments end; ///< Behind everything.

    /// The section of this name, which is appended where it is missing.
    DocumentSection &section(const QString &name);
};

/// Why a file cannot be read as a document, and where.
struct DocumentError
{
    IniPosition position;
    QString text; ///< A sentence; empty when nothing is wrong.
};

/// The document in the @p bytes of a file. What cannot be kept, or would not be read afterwards as
/// it was before, is an error: it is for a person to say what was meant.
Document readDocument(const QByteArray &bytes, DocumentError *error);

/// The text of the file.
QByteArray textOf(const Document &document);

/// Puts sections and keys into the order in which AUTH_INF::save_ini() writes them. Parameters and
/// results are sorted as a file gives them, hints in the order of what they are about. What is
/// unknown follows as it is.
void arrange(Document *document);

#endif
