// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltoresultview.h"

#include "delimitedtext_p.h"
#include "resulttable_p.h"
#include "tooltiptext_p.h"
#include "widgetlocale_p.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QHash>
#include <QHeaderView>
#include <QMessageBox>
#include <QSaveFile>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>

namespace {

enum Column { NameColumn, SymbolColumn, ValueColumn, UnitColumn };

/// The position of a result; a sub-group has none.
constexpr int positionRole = Qt::UserRole + 1;
/// What an expandable item is known by when the results are shown anew.
constexpr int pathRole = Qt::UserRole + 2;

/// Longer lists are shown on demand.
constexpr int mostExpandedValues = 10;

QStandardItem *newItem(const QString &text, const QString &toolTip = QString())
{
    auto *item = new QStandardItem(text);
    item->setToolTip(toolTipText(toolTip));
    item->setEditable(false);
    return item;
}

QStandardItem *newValueItem(const QString &text, const QString &exact)
{
    QStandardItem *item = newItem(text, exact);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

} // namespace

class KeltoResultViewPrivate
{
public:
    explicit KeltoResultViewPrivate(KeltoResultView *view);

    void addCommand(void (KeltoResultView::*slot)(), const char *name, const QKeySequence &keys);
    void retranslate();
    void show();
    QList<QStandardItem *> newRow(int position) const;
    QStandardItem *parentFor(const Result &result);
    void rememberExpanded(const QModelIndex &index, bool isExpanded);
    void expand(const QStandardItem *item);
    QVector<int> allPositions() const;
    QVector<int> selectedPositions() const;

    KeltoResultView *q;
    QStandardItemModel *model;
    QTreeView *tree;
    QVector<QAction *> commands;
    ResultTable table;
    /// What the user has opened and closed, by path.
    QHash<QString, bool> expanded;
};

KeltoResultViewPrivate::KeltoResultViewPrivate(KeltoResultView *view)
    : q(view)
    , model(new QStandardItemModel(view))
    , tree(new QTreeView(view))
{
    tree->setObjectName(QStringLiteral("kelto_results"));
    tree->setModel(model);
    tree->setAlternatingRowColors(true);
    tree->setUniformRowHeights(true);
    tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    tree->header()->setSectionsMovable(false);
    QObject::connect(tree, &QTreeView::expanded, q,
                     [this](const QModelIndex &index) { rememberExpanded(index, true); });
    QObject::connect(tree, &QTreeView::collapsed, q,
                     [this](const QModelIndex &index) { rememberExpanded(index, false); });
}

void KeltoResultViewPrivate::addCommand(void (KeltoResultView::*slot)(), const char *name,
                                        const QKeySequence &keys)
{
    auto *action = new QAction(q);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(action, &QAction::triggered, q, slot);
    tree->addAction(action);
    commands.append(action);
}

void KeltoResultViewPrivate::retranslate()
{
    commands.at(0)->setText(KeltoResultView::tr("Copy as Text"));
    commands.at(1)->setText(KeltoResultView::tr("Copy for a Spreadsheet"));
    commands.at(2)->setText(KeltoResultView::tr("Export as CSV..."));
    tree->setAccessibleName(KeltoResultView::tr("Results"));
    show();
}

void KeltoResultViewPrivate::show()
{
    model->clear();
    model->setHorizontalHeaderLabels({ KeltoResultView::tr("Name"), KeltoResultView::tr("Symbol"),
                                       KeltoResultView::tr("Value"), KeltoResultView::tr("Unit") });
    model->horizontalHeaderItem(ValueColumn)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // A new model has new sections.
    tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tree->setRootIsDecorated(false);
    for (int i = 0; i < table.results().size(); ++i)
        parentFor(table.results().at(i))->appendRow(newRow(i));
    for (int i = 0; i < model->rowCount(); ++i) {
        expand(model->item(i));
        for (int j = 0; j < model->item(i)->rowCount(); ++j)
            expand(model->item(i)->child(j));
    }
}

QList<QStandardItem *> KeltoResultViewPrivate::newRow(int position) const
{
    const Result &result = table.results().at(position);
    QStandardItem *name = newItem(table.name(result), table.help(result));
    name->setData(position, positionRole);
    name->setData(QString(result.row.parameter.group().first + QLatin1Char('\n') + result.row.key),
                  pathRole);
    QString shown = KeltoResultView::tr("no value");
    QString exact;
    if (result.isList) {
        shown = table.countText(result);
        for (int i = 0; i < result.values.size(); ++i) {
            const ResultCells &value = result.values.at(i);
            name->appendRow({ newItem(table.locale.toString(i + 1)), newItem(QString()),
                              newValueItem(table.shown(result, value), table.exact(result, value)),
                              newItem(table.unit(result)) });
        }
    } else if (!result.values.isEmpty()) {
        shown = table.shown(result, result.values.first());
        exact = table.exact(result, result.values.first());
    }
    return { name, newItem(result.row.parameter.symbol()), newValueItem(shown, exact),
             newItem(result.isList ? QString() : table.unit(result)) };
}

/// The last item of the sub-group, or a new one.
QStandardItem *KeltoResultViewPrivate::parentFor(const Result &result)
{
    if (result.isList)
        tree->setRootIsDecorated(true);
    const QString path = result.row.parameter.group().first;
    if (path.isEmpty())
        return model->invisibleRootItem();
    QStandardItem *last = model->item(model->rowCount() - 1);
    if (last && last->data(pathRole).toString() == path)
        return last;
    QStandardItem *item = newItem(table.group(result));
    item->setData(path, pathRole);
    QFont font;
    font.setBold(true);
    item->setFont(font);
    model->appendRow(item);
    tree->setFirstColumnSpanned(item->row(), QModelIndex(), true);
    tree->setRootIsDecorated(true);
    return item;
}

void KeltoResultViewPrivate::rememberExpanded(const QModelIndex &index, bool isExpanded)
{
    expanded.insert(index.data(pathRole).toString(), isExpanded);
}

void KeltoResultViewPrivate::expand(const QStandardItem *item)
{
    const bool isGroup = !item->data(positionRole).isValid();
    const bool isShort = isGroup || item->rowCount() <= mostExpandedValues;
    if (item->rowCount() > 0 && expanded.value(item->data(pathRole).toString(), isShort)) {
        const QSignalBlocker blocker(tree);
        tree->setExpanded(item->index(), true);
    }
}

QVector<int> KeltoResultViewPrivate::allPositions() const
{
    QVector<int> positions(table.results().size());
    std::iota(positions.begin(), positions.end(), 0);
    return positions;
}

/// A selected sub-group stands for its results, and a value of a list for the list.
QVector<int> KeltoResultViewPrivate::selectedPositions() const
{
    QVector<int> positions;
    const QModelIndexList rows = tree->selectionModel()->selectedRows();
    for (const QModelIndex &row : rows) {
        const QStandardItem *item = model->itemFromIndex(row);
        const bool isGroup = item->data(pathRole).isValid() && !item->data(positionRole).isValid();
        for (int i = 0; isGroup && i < item->rowCount(); ++i)
            positions.append(item->child(i)->data(positionRole).toInt());
        if (!isGroup && !item->data(positionRole).isValid())
            item = item->parent();
        if (!isGroup)
            positions.append(item->data(positionRole).toInt());
    }
    std::sort(positions.begin(), positions.end());
    positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
    return positions.isEmpty() ? allPositions() : positions;
}

KeltoResultView::KeltoResultView(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<KeltoResultViewPrivate>(this))
{
    d->addCommand(&KeltoResultView::copyAsText, "kelto_copyAsText", QKeySequence::Copy);
    d->addCommand(&KeltoResultView::copyAsCells, "kelto_copyAsCells",
                  Qt::CTRL + Qt::SHIFT + Qt::Key_C);
    d->addCommand(&KeltoResultView::exportCsv, "kelto_exportCsv", Qt::CTRL + Qt::Key_E);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(QMargins());
    layout->addWidget(d->tree);
    setFocusProxy(d->tree);
    d->table.locale = locale();
    d->retranslate();
}

KeltoResultView::~KeltoResultView() = default;

void KeltoResultView::setResults(QVector<VParameter> results,
                                 QVector<QPair<QString, QVariant>> values, KeltoItemHints hints)
{
    const int digits = d->table.significantDigits;
    const QLocale numbers = d->table.locale;
    d->table = ResultTable(results, values, hints);
    d->table.significantDigits = digits;
    d->table.locale = numbers;
    d->show();
}

int KeltoResultView::significantDigits() const
{
    return d->table.significantDigits;
}

void KeltoResultView::setSignificantDigits(int digits)
{
    const int allowed = qBound(1, digits, 17);
    if (allowed == d->table.significantDigits)
        return;
    d->table.significantDigits = allowed;
    d->show();
    Q_EMIT significantDigitsChanged(allowed);
}

QString KeltoResultView::text() const
{
    return d->table.text(d->allPositions());
}

QString KeltoResultView::csv() const
{
    return d->table.csv();
}

bool KeltoResultView::saveCsv(QString path, QString *problem) const
{
    QSaveFile file(path);
    bool isSaved = file.open(QIODevice::WriteOnly);
    if (isSaved) {
        file.write(csv().toUtf8());
        isSaved = file.commit();
    }
    if (problem)
        *problem = isSaved ? QString()
                           : tr("%1 could not be written: %2")
                                 .arg(QDir::toNativeSeparators(path), file.errorString());
    return isSaved;
}

void KeltoResultView::copyAsText()
{
    QApplication::clipboard()->setText(d->table.text(d->selectedPositions()));
}

void KeltoResultView::copyAsCells()
{
    const QVector<QStringList> cells = d->table.cells(d->selectedPositions(), d->table.locale);
    QApplication::clipboard()->setText(
        DelimitedText::write(cells, QLatin1Char('\t'), QStringLiteral("\n")));
}

void KeltoResultView::exportCsv()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Export Results"), tr("results.csv"),
                                                      tr("Tables (*.csv);;All files (*)"));
    QString problem;
    if (!path.isEmpty() && !saveCsv(path, &problem))
        QMessageBox::warning(this, tr("Export Results"), problem);
}

void KeltoResultView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LocaleChange || event->type() == QEvent::LanguageChange) {
        d->table.locale = currentLocale(this);
        d->retranslate();
    }
}
