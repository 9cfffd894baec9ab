// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "editors/choiceeditor_p.h"

#include "keltoparametermodel.h"
#include "parameterrow_p.h"

#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QVariantMap>
#include <QWheelEvent>

#include <algorithm>

ChoiceBox::ChoiceBox(QWidget *parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    // It is as wide as its choices where there is room, and no long one keeps the form from
    // becoming narrow.
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    setMinimumContentsLength(6);
}

void ChoiceBox::keyPressEvent(QKeyEvent *event)
{
    // It would search for the character of the key.
    if (isUndoOrRedo(*event))
        event->ignore();
    else
        QComboBox::keyPressEvent(event);
}

void ChoiceBox::paintEvent(QPaintEvent * /*event*/)
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    if (currentIndex() < 0) {
        option.currentText = placeholderText();
        // The brush itself may be one that draws nothing.
        const QColor color = option.palette.color(QPalette::PlaceholderText);
        option.palette.setColor(QPalette::ButtonText, color);
        option.palette.setColor(QPalette::Text, color);
    }
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void ChoiceBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

ChoiceEditor::ChoiceEditor(EditorListener *listener, int row, QWidget *parent)
    : ValueEditor(listener, row)
    , m_box(new ChoiceBox(parent))
{
    QObject::connect(m_box, qOverload<int>(&QComboBox::currentIndexChanged), m_box,
                     [this](int index) {
                         if (!m_isShowing && index >= 0)
                             this->listener()->choose(this->row(), m_box->itemData(index));
                     });
}

/// The values with their labels. An optional value can also be none; one that is no choice is shown
/// as it is.
ChoiceEditor::Choices ChoiceEditor::choices(const QModelIndex &index)
{
    Choices all;
    if (index.data(KeltoParameterModel::OptionalRole).toBool())
        all.append({ QString(), QString() });
    const QVariantList maps = index.data(KeltoParameterModel::ChoicesRole).toList();
    for (const QVariant &map : maps)
        all.append({ map.toMap().value(QStringLiteral("value")).toString(),
                     map.toMap().value(QStringLiteral("label")).toString() });
    if (index.data(KeltoParameterModel::KindRole) == KeltoParameterModel::Bool)
        all += { { QStringLiteral("true"), KeltoParameterModel::tr("Yes") },
                 { QStringLiteral("false"), KeltoParameterModel::tr("No") } };
    const QString value = storedText(index.data(KeltoParameterModel::ValueRole));
    const bool isKnown = std::any_of(all.cbegin(), all.cend(),
                                     [&](const auto &choice) { return choice.first == value; });
    if (!isKnown && !value.isEmpty())
        all.append({ value, value });
    return all;
}

void ChoiceEditor::offer(const Choices &choices)
{
    if (choices == m_offered)
        return;
    m_offered = choices;
    m_box->clear();
    for (const auto &choice : choices)
        m_box->addItem(choice.second, choice.first);
}

void ChoiceEditor::show(const QModelIndex &index)
{
    m_isShowing = true;
    offer(choices(index));
    m_box->setPlaceholderText(ChoiceBox::tr("Choose"));
    m_box->setCurrentIndex(m_box->findData(storedText(index.data(KeltoParameterModel::ValueRole))));
    m_isShowing = false;
}
