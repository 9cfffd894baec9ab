// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltotableeditor_p.h"

#include "delimitedtext_p.h"
#include "keltotablemodel_p.h"
#include "keltotableview_p.h"
#include "shownfinding_p.h"
#include "tabletext_p.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QFocusEvent>
#include <QGridLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

class KeltoTableEditorPrivate
{
public:
    KeltoTableEditorPrivate(KeltoTableEditor *editor, const TableCells &cells);

    void addCommands(QLayout *buttons);
    void addCommand(void (KeltoTableEditor::*slot)(), const char *name, const char *text,
                    const QKeySequence &keys, QLayout *buttons);
    void listen();
    void retranslate();
    void updateStatus();
    /// Says something until the next change or move.
    void say(const QString &text);

    QModelIndex current() const { return table->currentIndex(); }
    QItemSelectionRange selection() const;
    /// Makes cells the selected ones and the first of them the current one, whatever keys are held.
    void moveTo(const QModelIndex &first, const QModelIndex &last);
    void apply(const QStringList &elements);
    void insertRow(int row);
    void replace(int row, int column, const QVector<QStringList> &block);
    QStringList rowsOf(const TableText &text) const;

    /// A command with its text before translation.
    struct Command
    {
        QAction *action;
        const char *text;
    };

    KeltoTableEditor *q;
    KeltoTableModel *model;
    KeltoTableView *table;
    QLabel *status;
    bool hasMessage = false;
    QVector<Command> commands;
};

KeltoTableEditorPrivate::KeltoTableEditorPrivate(KeltoTableEditor *editor, const TableCells &cells)
    : q(editor)
    , model(new KeltoTableModel(cells, editor))
    , table(new KeltoTableView(model, editor))
    , status(new QLabel(editor))
{
    table->setObjectName(QStringLiteral("kelto_table"));
    status->setObjectName(QStringLiteral("kelto_status"));
    status->setWordWrap(true);
    status->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    status->setTextFormat(Qt::PlainText);
    status->setTextInteractionFlags(Qt::TextSelectableByMouse);
}

/// The rare ones are only in the context menu.
void KeltoTableEditorPrivate::addCommands(QLayout *buttons)
{
    using Editor = KeltoTableEditor;
    addCommand(&Editor::insertRowBelow, "kelto_insertRowBelow",
               QT_TRANSLATE_NOOP("KeltoTableEditor", "Insert Row"), Qt::Key_Insert, buttons);
    addCommand(&Editor::insertRowAbove, "kelto_insertRowAbove",
               QT_TRANSLATE_NOOP("KeltoTableEditor", "Insert Row Above"),
               Qt::ALT + Qt::SHIFT + Qt::Key_Insert, nullptr);
    addCommand(&Editor::deleteRows, "kelto_deleteRows",
               QT_TRANSLATE_NOOP("KeltoTableEditor", "Delete Rows"), Qt::CTRL + Qt::Key_Minus,
               buttons);
    if (model->cells().isFree()) {
        addCommand(&Editor::insertColumn, "kelto_insertColumn",
                   QT_TRANSLATE_NOOP("KeltoTableEditor", "Insert Column"), Qt::ALT + Qt::Key_Insert,
                   buttons);
        addCommand(&Editor::deleteColumns, "kelto_deleteColumns",
                   QT_TRANSLATE_NOOP("KeltoTableEditor", "Delete Columns"),
                   Qt::ALT + Qt::Key_Delete, buttons);
    }
    addCommand(&Editor::clearCells, "kelto_clearCells",
               QT_TRANSLATE_NOOP("KeltoTableEditor", "Clear Cells"), QKeySequence::Delete, nullptr);
    addCommand(&Editor::copy, "kelto_copy", QT_TRANSLATE_NOOP("KeltoTableEditor", "Copy"),
               QKeySequence::Copy, nullptr);
    addCommand(&Editor::paste, "kelto_paste", QT_TRANSLATE_NOOP("KeltoTableEditor", "Paste"),
               QKeySequence::Paste, nullptr);
    addCommand(&Editor::chooseFile, "kelto_import",
               QT_TRANSLATE_NOOP("KeltoTableEditor", "Import..."), Qt::CTRL + Qt::Key_I, buttons);
}

void KeltoTableEditorPrivate::addCommand(void (KeltoTableEditor::*slot)(), const char *name,
                                         const char *text, const QKeySequence &keys,
                                         QLayout *buttons)
{
    auto *action = new QAction(q);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(keys);
    // A form may hold several tables.
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(action, &QAction::triggered, q, slot);
    table->addAction(action);
    commands.append({ action, text });
    if (!buttons)
        return;
    auto *button = new QToolButton(q);
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    buttons->addWidget(button);
}

void KeltoTableEditorPrivate::listen()
{
    QObject::connect(model, &KeltoTableModel::cellEdited, q, [this] {
        updateStatus();
        Q_EMIT q->edited();
    });
    QObject::connect(model, &KeltoTableModel::cellRefused, q,
                     [this](const QString &problem) { say(problem); });
    QObject::connect(table->selectionModel(), &QItemSelectionModel::currentChanged, q,
                     [this](const QModelIndex & /*current*/, const QModelIndex &previous) {
                         // On getting the focus the table takes its first cell, which is no reason
                         // to drop what was said.
                         if (previous.isValid() || !hasMessage)
                             updateStatus();
                     });
}

void KeltoTableEditorPrivate::retranslate()
{
    for (const Command &command : qAsConst(commands)) {
        QAction *action = command.action;
        action->setText(KeltoTableEditor::tr(command.text));
        // Buttons would leave out the dots.
        action->setIconText(action->text());
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        action->setToolTip(QStringLiteral("%1 (%2)").arg(action->text(), keys));
    }
    model->retranslate();
    updateStatus();
}

void KeltoTableEditorPrivate::updateStatus()
{
    const QString problem = current().data(KeltoTableModel::ProblemRole).toString();
    const QString rows = KeltoTableEditor::tr("Rows: %1").arg(model->rowCount());
    status->setText(problem.isEmpty()
                        ? rows
                        : KeltoTableEditor::tr("Row %1: %2").arg(current().row() + 1).arg(problem));
    hasMessage = false;
}

void KeltoTableEditorPrivate::say(const QString &text)
{
    status->setText(text);
    hasMessage = true;
    QAccessibleEvent alert(status, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

/// One range at most: the view selects no other.
QItemSelectionRange KeltoTableEditorPrivate::selection() const
{
    const QItemSelection ranges = table->selectionModel()->selection();
    if (!ranges.isEmpty())
        return ranges.first();
    return current().isValid() ? QItemSelectionRange(current()) : QItemSelectionRange();
}

void KeltoTableEditorPrivate::moveTo(const QModelIndex &first, const QModelIndex &last)
{
    table->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    table->selectionModel()->select(QItemSelection(first, last),
                                    QItemSelectionModel::ClearAndSelect);
}

void KeltoTableEditorPrivate::apply(const QStringList &elements)
{
    if (elements == model->elements())
        return;
    model->setElements(elements);
    updateStatus();
    Q_EMIT q->edited();
}

void KeltoTableEditorPrivate::insertRow(int row)
{
    QStringList elements = model->elements();
    elements.insert(row, model->cells().emptyElement(model->columnCount()));
    const int column = qMax(0, current().column());
    apply(elements);
    moveTo(model->index(row, column), model->index(row, column));
}

void KeltoTableEditorPrivate::replace(int row, int column, const QVector<QStringList> &block)
{
    apply(model->cells().withBlock(model->elements(), row, column, block));
    int width = 1;
    for (const QStringList &cells : block)
        width = qMax(width, cells.size());
    const QModelIndex first = model->index(row, column);
    const QModelIndex last = model->index(row + block.size() - 1, column + width - 1);
    moveTo(first, last);
}

QStringList KeltoTableEditorPrivate::rowsOf(const TableText &text) const
{
    QStringList elements;
    elements.reserve(text.rows.size());
    for (const QStringList &row : text.rows)
        elements.append(row.join(QLatin1Char('|')));
    return elements;
}

KeltoTableEditor::KeltoTableEditor(int columns, KeltoParameterModel::Kind cellKind, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<KeltoTableEditorPrivate>(this, TableCells(columns, cellKind)))
{
    auto *buttons = new QVBoxLayout;
    d->addCommands(buttons);
    buttons->addStretch();
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(QMargins());
    layout->addWidget(d->table, 0, 0);
    layout->addLayout(buttons, 0, 1);
    layout->addWidget(d->status, 1, 0, 1, 2);
    layout->setColumnStretch(0, 1);
    d->listen();
    d->model->setLocale(locale());
    d->retranslate();
}

KeltoTableEditor::~KeltoTableEditor()
{
    // An open cell is committed when its editor loses the focus, which it does on being deleted.
    d->model->disconnect(this);
    d->table->selectionModel()->disconnect(this);
}

QStringList KeltoTableEditor::value() const
{
    return d->model->elements();
}

void KeltoTableEditor::setValue(QStringList value)
{
    if (value == d->model->elements())
        return;
    d->model->setElements(value);
    d->updateStatus();
}

void KeltoTableEditor::setFindings(QVector<KeltoItemFinding> findings)
{
    QHash<int, QString> texts;
    for (const KeltoItemFinding &finding : qAsConst(findings)) {
        QString &text = texts[finding.position];
        const KeltoItemFinding shown = shownFinding(finding, [this](const QString &element) {
            return d->model->cells().shownElement(element, d->model->locale());
        });
        text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + shown.text();
    }
    d->table->setAccessibleDescription(texts.value(-1));
    d->model->setFindings(texts);
    d->updateStatus();
}

void KeltoTableEditor::insertRowBelow()
{
    d->insertRow(d->current().isValid() ? d->selection().bottom() + 1 : d->model->rowCount());
}

void KeltoTableEditor::insertRowAbove()
{
    d->insertRow(d->current().isValid() ? d->selection().top() : 0);
}

void KeltoTableEditor::deleteRows()
{
    const QItemSelectionRange range = d->selection();
    if (!range.isValid())
        return;
    const int column = d->current().column();
    const int top = range.top();
    d->apply(d->model->elements().mid(0, top) + d->model->elements().mid(range.bottom() + 1));
    const QModelIndex next = d->model->index(qMin(top, d->model->rowCount() - 1), qMax(0, column));
    d->moveTo(next, next);
}

void KeltoTableEditor::insertColumn()
{
    const TableCells &cells = d->model->cells();
    if (!cells.isFree())
        return;
    const QModelIndex current = d->current();
    const int column = (current.isValid() ? current.column() : d->model->columnCount() - 1) + 1;
    d->apply(cells.withColumn(d->model->elements(), column));
    const QModelIndex inserted = d->model->index(qMax(0, current.row()), column);
    d->moveTo(inserted, inserted);
}

void KeltoTableEditor::deleteColumns()
{
    const QItemSelectionRange range = d->selection();
    const TableCells &cells = d->model->cells();
    if (!cells.isFree() || !range.isValid() || range.width() == d->model->columnCount())
        return;
    QStringList elements = d->model->elements();
    for (int column = range.right(); column >= range.left(); --column)
        elements = cells.withoutColumn(elements, column);
    d->apply(elements);
}

void KeltoTableEditor::clearCells()
{
    const QItemSelectionRange range = d->selection();
    QStringList elements = d->model->elements();
    const QModelIndexList indexes = range.indexes();
    for (const QModelIndex &index : indexes) {
        // A row that ends before the cell stays as short as it is.
        if (!index.data(Qt::EditRole).toString().isEmpty())
            elements[index.row()]
                = d->model->cells().withCell(elements.at(index.row()), index.column(), QString());
    }
    d->apply(elements);
}

void KeltoTableEditor::copy()
{
    const QItemSelectionRange range = d->selection();
    if (!range.isValid())
        return;
    QVector<QStringList> rows(range.height());
    for (int row = range.top(); row <= range.bottom(); ++row) {
        for (int column = range.left(); column <= range.right(); ++column)
            rows[row - range.top()].append(d->model->index(row, column).data().toString());
    }
    QApplication::clipboard()->setText(
        DelimitedText::write(rows, QLatin1Char('\t'), QStringLiteral("\n")));
}

void KeltoTableEditor::paste()
{
    const int row = d->current().isValid() ? d->selection().top() : d->model->rowCount();
    const int column = d->current().isValid() ? d->selection().left() : 0;
    const TableCells &cells = d->model->cells();
    const int width = cells.isFree() ? 0 : d->model->columnCount() - column;
    const TableText text = TableTextReader(cells, width, d->model->locale())
                               .readBlock(QApplication::clipboard()->text());
    if (!text.problem.isEmpty())
        return d->say(tr("Nothing was pasted.") + QLatin1Char('\n') + text.problem);
    d->replace(row, column, text.rows);
}

void KeltoTableEditor::chooseFile()
{
    const QString path
        = QFileDialog::getOpenFileName(this, tr("Import Table"), QString(),
                                       tr("Tables (*.csv *.tsv *.txt);;All files (*)"));
    if (!path.isEmpty())
        importFile(path);
}

bool KeltoTableEditor::importFile(QString path)
{
    QFile file(path);
    const bool isRead = file.open(QIODevice::ReadOnly);
    const TableCells &cells = d->model->cells();
    const int width = cells.isFree() ? 0 : d->model->columnCount();
    const TableText text = isRead
        ? TableTextReader(cells, width, d->model->locale()).readFile(file.readAll())
        : TableText { {}, false, file.errorString() };
    if (!text.problem.isEmpty()) {
        d->say(tr("Nothing was imported from %1.").arg(QDir::toNativeSeparators(path))
               + QLatin1Char('\n') + text.problem);
        return false;
    }
    d->apply(d->rowsOf(text));
    d->moveTo(d->model->index(0, 0), d->model->index(0, 0));
    const QString imported = text.hasHeadings
        ? tr("Imported rows: %1, without the line of headings")
        : tr("Imported rows: %1");
    d->say(imported.arg(text.rows.size()));
    return true;
}

void KeltoTableEditor::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LocaleChange)
        d->model->setLocale(locale());
    else if (event->type() == QEvent::LanguageChange)
        d->retranslate();
}

void KeltoTableEditor::focusInEvent(QFocusEvent *event)
{
    d->table->setFocus(event->reason());
}

void KeltoTableEditor::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // A screen reader meets the table, not this widget around it.
    d->table->setAccessibleName(accessibleName());
}
