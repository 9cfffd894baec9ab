// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The boxes and rows of the form, and how they follow the model.

#include "keltoparameterform_p.h"

#include "widgetlocale_p.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QIconEngine>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOption>
#include <QToolButton>
#include <QUndoStack>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using Model = KeltoParameterModel;

namespace {

/// Would like to be as large as all rows, up to most of the screen: the size that a QScrollArea
/// wants ends at 24 lines of text.
class RowArea : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;

    QSize sizeHint() const override
    {
        if (!widget())
            return QScrollArea::sizeHint();
        const QSize most = screen()->availableSize() * 2 / 3;
        QSize size = widget()->sizeHint();
        // One that scrolls needs the room of the scroll bar beside its rows.
        if (size.height() > most.height())
            size.rwidth() += verticalScrollBar()->sizeHint().width();
        return size.boundedTo(most);
    }
};

/// The arrow that the style of a widget draws. As an icon of a button it keeps clear of the text:
/// from right to left styles mirror icons, but not the arrows that buttons have themselves.
class ArrowIcon : public QIconEngine
{
public:
    ArrowIcon(const QWidget *widget, QStyle::PrimitiveElement arrow)
        : m_widget(widget)
        , m_arrow(arrow)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode /*mode*/,
               QIcon::State /*state*/) override
    {
        QStyleOption option;
        option.initFrom(m_widget);
        option.rect = rect;
        m_widget->style()->drawPrimitive(m_arrow, &option, painter, m_widget);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QIconEngine *clone() const override { return new ArrowIcon(*this); }

private:
    const QWidget *m_widget;
    QStyle::PrimitiveElement m_arrow;
};

} // namespace

KeltoParameterFormPrivate::LayoutPause::LayoutPause(const KeltoParameterFormPrivate *form)
    : m_form(form)
{
    setEnabled(false);
}

KeltoParameterFormPrivate::LayoutPause::~LayoutPause()
{
    setEnabled(true);
}

void KeltoParameterFormPrivate::LayoutPause::setEnabled(bool enabled) const
{
    if (const QWidget *contents = m_form->area->widget())
        contents->layout()->setEnabled(enabled);
    for (const Box &box : m_form->m_boxes)
        box.widget->layout()->setEnabled(enabled);
}

KeltoParameterFormPrivate::KeltoParameterFormPrivate(KeltoParameterForm *form)
    : q(form)
    , search(new QLineEdit(form))
    , area(new RowArea(form))
    , advanced(new QToolButton(form))
    , summary(new QLabel(form))
{
    search->setObjectName(QStringLiteral("kelto_search"));
    search->setClearButtonEnabled(true);
    search->hide();
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    // Whatever has the focus is brought into view, so that Tab need not stop at the area itself.
    area->setFocusPolicy(Qt::NoFocus);
    advanced->setObjectName(QStringLiteral("kelto_advanced"));
    advanced->setCheckable(true);
    advanced->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    advanced->setAutoRaise(true);
    advanced->hide();
    summary->setObjectName(QStringLiteral("kelto_summary"));
    summary->setTextFormat(Qt::RichText);
    summary->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    summary->setWordWrap(true);
    auto *layout = new QVBoxLayout(form);
    layout->setContentsMargins(QMargins());
    layout->addWidget(search);
    layout->addWidget(area, 1);
    layout->addWidget(advanced);
    layout->addWidget(summary);
    QObject::connect(search, &QLineEdit::textChanged, form, [this] { showEveryVisibility(); });
    QObject::connect(advanced, &QToolButton::toggled, form,
                     &KeltoParameterForm::setAdvancedVisible);
    QObject::connect(summary, &QLabel::linkActivated, form, [this](const QString &link) {
        q->focusParameter(index(link.toInt()).data(Model::KeyRole).toString());
    });
    showTexts();
    showArrow();
}

void KeltoParameterFormPrivate::choose(int row, const QVariant &typed)
{
    model->setData(index(row), typed, Model::TextRole);
}

void KeltoParameterFormPrivate::type(int row, const QVariant &typed)
{
    m_typedRow = row;
    model->typeText(row, typed.toString(), m_session);
    m_typedRow = -1;
}

void KeltoParameterFormPrivate::finishTyping(int row)
{
    ++m_session;
    // The text becomes what is stored of it, "1.5" in German "1,5". An editor that is being
    // replaced may still lose the focus.
    if (field(row))
        m_rows.at(row)->show(index(row));
}

void KeltoParameterFormPrivate::step(void (QUndoStack::*undoOrRedo)())
{
    ++m_session;
    m_changedRow = -1;
    (undoStack()->*undoOrRedo)();
    bringIntoView(m_changedRow);
}

bool KeltoParameterFormPrivate::bringIntoView(int row)
{
    if (!field(row) || !index(row).data(Model::CountsRole).toBool())
        return false;
    if (index(row).data(Model::AdvancedRole).toBool())
        q->setAdvancedVisible(true);
    if (!isFound(row))
        search->clear();
    // A row that was hidden has no place yet.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    area->ensureWidgetVisible(field(row));
    return true;
}

void KeltoParameterFormPrivate::setOwnModel(std::unique_ptr<KeltoParameterModel> newModel)
{
    newModel->setLocale(q->locale());
    setModel(newModel.get());
    ownModel = std::move(newModel);
}

void KeltoParameterFormPrivate::setModel(KeltoParameterModel *newModel)
{
    if (newModel == model)
        return;
    if (model)
        model->disconnect(q);
    dropRows();
    model = newModel;
    // The model may be on the way of telling that it was edited.
    if (ownModel)
        ownModel.release()->deleteLater();
    build();
    connectModel();
    // Values that are filled in before the form is shown have no findings to be shown meanwhile.
    QMetaObject::invokeMethod(
        q, [this] { showFindings(); }, Qt::QueuedConnection);
}

/// An editor that is deleted loses the focus first, and finds no row any more to tell of it.
void KeltoParameterFormPrivate::deleteRows()
{
    const Rows rows = std::exchange(m_rows, Rows());
    delete area->takeWidget();
}

/// Leaves the editors alive for as long as one of them may be telling of a change.
void KeltoParameterFormPrivate::dropRows()
{
    const auto rows = std::make_shared<Rows>(std::exchange(m_rows, Rows()));
    m_boxes.clear();
    m_boxOfRow.clear();
    QWidget *contents = area->takeWidget();
    if (!contents)
        return;
    QObject::connect(contents, &QObject::destroyed, [rows] { rows->clear(); });
    contents->hide();
    contents->deleteLater();
}

void KeltoParameterFormPrivate::connectModel()
{
    QObject::connect(model, &Model::edited, q, &KeltoParameterForm::edited);
    QObject::connect(model, &Model::completeChanged, q, &KeltoParameterForm::completeChanged);
    QObject::connect(model, &Model::findingsChanged, q, [this] { showFindings(); });
    QObject::connect(model, &Model::dataChanged, q,
                     [this](const QModelIndex &first, const QModelIndex &last,
                            const QVector<int> &roles) {
                         if (roles.isEmpty())
                             showRows(first.row(), last.row());
                     });
    QObject::connect(model, &QObject::destroyed, q, [this] { q->setModel(nullptr); });
}

QModelIndex KeltoParameterFormPrivate::index(int row) const
{
    return model->index(row, Model::ValueColumn);
}

QWidget *KeltoParameterFormPrivate::field(int row) const
{
    return row >= 0 && row < int(m_rows.size()) ? m_rows.at(row)->field() : nullptr;
}

void KeltoParameterFormPrivate::build()
{
    auto *contents = new QWidget;
    auto *layout = new QVBoxLayout(contents);
    // Boxes begin where the search and the summary do.
    layout->setContentsMargins(QMargins());
    sortIntoBoxes();
    m_rows.resize(model->rowCount());
    for (Box &box : m_boxes) {
        fill(&box, contents);
        layout->addWidget(box.widget);
    }
    layout->addStretch(1);
    showRows(0, model->rowCount() - 1);
    alignColumns();
    area->setWidget(contents);
    setTabOrder();
    showEveryVisibility();
    area->updateGeometry();
}

void KeltoParameterFormPrivate::sortIntoBoxes()
{
    QHash<QString, int> boxOfGroup;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QString group = index(row).data(Model::GroupRole).toString();
        if (!boxOfGroup.contains(group)) {
            boxOfGroup.insert(group, int(m_boxes.size()));
            m_boxes.push_back(Box());
        }
        m_boxOfRow.push_back(boxOfGroup.value(group));
        m_boxes.at(m_boxOfRow.back()).rows.push_back(row);
    }
}

void KeltoParameterFormPrivate::fill(Box *box, QWidget *parent)
{
    box->widget = new QGroupBox(parent);
    auto *grid = new QGridLayout(box->widget);
    // Spacing would be left out beside a column without anything visible, and editors would be
    // wider there. The gaps between the columns are columns themselves.
    grid->setHorizontalSpacing(0);
    int position = 0;
    for (const int row : box->rows)
        m_rows.at(row) = std::make_unique<FormRow>(index(row), this, grid, position++);
    box->visibleRows = position;
}

/// Editors of all boxes begin and end at the same places.
void KeltoParameterFormPrivate::alignColumns() const
{
    int labelWidth = 0;
    int unitWidth = 0;
    for (const auto &row : m_rows) {
        labelWidth = qMax(labelWidth, row->labelWidth());
        unitWidth = qMax(unitWidth, row->unitWidth());
    }
    for (const Box &box : m_boxes)
        FormRow::alignColumns(static_cast<QGridLayout *>(box.widget->layout()), labelWidth,
                              unitWidth);
}

/// The rows stand in front of what was there before them.
void KeltoParameterFormPrivate::setTabOrder() const
{
    QWidget *previous = search;
    const auto append = [&previous](QWidget *next) {
        QWidget::setTabOrder(previous, next);
        previous = next;
    };
    for (const Box &box : m_boxes) {
        for (const int row : box.rows) {
            const QVector<QWidget *> stops = m_rows.at(row)->tabStops();
            std::for_each(stops.cbegin(), stops.cend(), append);
        }
    }
    append(advanced);
    append(summary);
}

void KeltoParameterFormPrivate::showRows(int first, int last)
{
    const LayoutPause pause(this);
    for (int row = first; row <= last; ++row) {
        if (row != m_typedRow)
            m_rows.at(row)->show(index(row));
        showVisibility(row);
    }
    showTitles(first, last);
    m_changedRow = last;
}

void KeltoParameterFormPrivate::showTitles(int first, int last) const
{
    for (const Box &box : m_boxes) {
        const int row = box.rows.front();
        if (row < first || row > last)
            continue;
        QString title = index(row).data(Model::TranslatedGroupRole).toString();
        box.widget->setTitle(title.replace(QLatin1Char('&'), QStringLiteral("&&")));
    }
}

bool KeltoParameterFormPrivate::isFound(int row) const
{
    const QString wanted = search->text().trimmed();
    if (wanted.isEmpty())
        return true;
    const auto contains = [&](int role) {
        return index(row).data(role).toString().contains(wanted, Qt::CaseInsensitive);
    };
    return contains(Model::NameRole) || contains(Model::SymbolRole) || contains(Model::KeyRole);
}

bool KeltoParameterFormPrivate::isWanted(int row) const
{
    const bool isAdvanced = index(row).data(Model::AdvancedRole).toBool();
    return index(row).data(Model::CountsRole).toBool() && (!isAdvanced || isAdvancedVisible)
        && isFound(row);
}

void KeltoParameterFormPrivate::showVisibility(int row)
{
    const bool isVisible = isWanted(row);
    if (isVisible == m_rows.at(row)->isVisible())
        return;
    m_rows.at(row)->setVisible(isVisible);
    Box &box = m_boxes.at(m_boxOfRow.at(row));
    box.visibleRows += isVisible ? 1 : -1;
    box.widget->setVisible(box.visibleRows > 0);
}

void KeltoParameterFormPrivate::showEveryVisibility()
{
    const LayoutPause pause(this);
    bool hasAdvanced = false;
    for (int row = 0; row < model->rowCount(); ++row) {
        showVisibility(row);
        hasAdvanced = hasAdvanced || index(row).data(Model::AdvancedRole).toBool();
    }
    advanced->setVisible(hasAdvanced);
}

void KeltoParameterFormPrivate::showTexts()
{
    search->setPlaceholderText(KeltoParameterForm::tr("Search"));
    search->setAccessibleName(KeltoParameterForm::tr("Search"));
    advanced->setText(KeltoParameterForm::tr("Advanced parameters"));
    summary->setAccessibleName(KeltoParameterForm::tr("Summary"));
}

/// Points to where more is: down when it is shown, else in the direction of reading.
void KeltoParameterFormPrivate::showArrow() const
{
    const QStyle::PrimitiveElement closed
        = q->isRightToLeft() ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowRight;
    advanced->setIcon(
        QIcon(new ArrowIcon(advanced, isAdvancedVisible ? QStyle::PE_IndicatorArrowDown : closed)));
}

void KeltoParameterFormPrivate::followLocale()
{
    if (ownModel)
        model->setLocale(currentLocale(q));
}
