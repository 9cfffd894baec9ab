// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "editors/patheditor_p.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPixmap>
#include <QToolButton>

namespace {

void setUp(QFileDialog *dialog, int kind)
{
    if (kind == KeltoParameterModel::NewFile) {
        dialog->setAcceptMode(QFileDialog::AcceptSave);
    } else if (kind == KeltoParameterModel::Directory) {
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
    } else {
        dialog->setFileMode(QFileDialog::ExistingFile);
    }
}

QIcon swatch(const QString &color, const QSize &size)
{
    QPixmap pixmap(size);
    pixmap.fill(QColor::isValidColor(color) ? QColor(color) : QColor(Qt::transparent));
    return pixmap;
}

} // namespace

LineWithButton::LineWithButton(EditorListener *listener, int row, QWidget *parent)
    : QWidget(parent)
    , m_line(new ValueLine(listener, row, this))
    , m_button(new QToolButton(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(QMargins());
    layout->addWidget(m_line);
    layout->addWidget(m_button);
    m_button->setObjectName(QStringLiteral("kelto_browse"));
    m_button->setFocusPolicy(Qt::StrongFocus);
}

PathEditor::PathEditor(EditorListener *listener, int row, QWidget *parent)
    : ValueEditor(listener, row)
    , m_widget(new LineWithButton(listener, row, parent))
{
    QObject::connect(m_widget->button(), &QToolButton::clicked, m_widget, [this] { browse(); });
}

void PathEditor::show(const QModelIndex &index)
{
    m_index = index;
    m_widget->line()->showText(index.data(KeltoParameterModel::TextRole).toString());
    m_widget->button()->setText(LineWithButton::tr("Browse..."));
    m_widget->button()->setAccessibleName(
        LineWithButton::tr("Browse for %1")
            .arg(index.data(KeltoParameterModel::NameRole).toString()));
}

void PathEditor::browse()
{
    auto *dialog = new QFileDialog(m_widget);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(m_index.data(KeltoParameterModel::NameRole).toString());
    setUp(dialog, m_index.data(KeltoParameterModel::KindRole).toInt());
    const QStringList filters = m_index.data(KeltoParameterModel::FileFiltersRole).toStringList();
    if (!filters.isEmpty())
        dialog->setNameFilters(filters);
    const QFileInfo current(m_widget->line()->text());
    if (!current.filePath().isEmpty())
        dialog->setDirectory(current.absolutePath());
    QObject::connect(dialog, &QFileDialog::fileSelected, m_widget,
                     [this](const QString &path) { listener()->choose(row(), path); });
    dialog->open();
}

ColorEditor::ColorEditor(EditorListener *listener, int row, QWidget *parent)
    : ValueEditor(listener, row)
    , m_widget(new LineWithButton(listener, row, parent))
{
    QObject::connect(m_widget->button(), &QToolButton::clicked, m_widget, [this] { pick(); });
    QObject::connect(m_widget->line(), &QLineEdit::textChanged, m_widget,
                     [button = m_widget->button()](const QString &text) {
                         button->setIcon(swatch(text, button->iconSize()));
                     });
}

void ColorEditor::show(const QModelIndex &index)
{
    const QString text = index.data(KeltoParameterModel::TextRole).toString();
    m_widget->line()->showText(text);
    QToolButton *button = m_widget->button();
    button->setIcon(swatch(text, button->iconSize()));
    button->setAccessibleName(LineWithButton::tr("Choose a colour for %1")
                                  .arg(index.data(KeltoParameterModel::NameRole).toString()));
}

void ColorEditor::pick()
{
    auto *dialog = new QColorDialog(QColor(m_widget->line()->text()), m_widget);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QColorDialog::colorSelected, m_widget,
                     [this](const QColor &color) { listener()->choose(row(), color.name()); });
    dialog->open();
}
