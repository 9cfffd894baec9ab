// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "input.h"
#include "suite.h"

#include <Kelto/Forms/KeltoParameterForm>

#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

struct Filled
{
    QVector<VParameter> parameters;
    Entries values;
};

Filled filled(int size)
{
    Filled input;
    const QVector<QStringList> entries = parameterEntries(size);
    for (const QStringList &entry : entries) {
        input.parameters.append(VParameter(entry));
        input.values.append({ QStringLiteral("Attribute/") + entry.at(1),
                              QString::number(input.values.size() / 8.0) });
        input.values.append({ QStringLiteral("Unit/") + entry.at(1), entry.at(4) });
    }
    return input;
}

using Window = std::unique_ptr<QWidget>;

Window form(const Filled &input)
{
    auto form = std::make_unique<KeltoParameterForm>(input.parameters);
    form->setValues(input.values);
    return form;
}

/// A box per sub-group with rows of name, value and unit, which do nothing else.
Window bareWidgets(const Filled &input)
{
    auto area = std::make_unique<QScrollArea>();
    auto *contents = new QWidget;
    auto *boxes = new QVBoxLayout(contents);
    QGroupBox *box = nullptr;
    QGridLayout *grid = nullptr;
    for (int i = 0; i < input.parameters.size(); ++i) {
        const VParameter &parameter = input.parameters.at(i);
        if (!box || box->title() != parameter.group().first) {
            box = new QGroupBox(parameter.group().first, contents);
            grid = new QGridLayout(box);
            boxes->addWidget(box);
        }
        auto *editor = new QLineEdit(box);
        grid->addWidget(new QLabel(parameter.name().second, box), i, 0);
        grid->addWidget(editor, i, 1);
        grid->addWidget(new QLabel(parameter.unit().first, box), i, 2);
        editor->setObjectName(parameter.name().first);
        editor->setText(input.values.at(2 * i).second.toString());
    }
    area->setWidgetResizable(true);
    area->setWidget(contents);
    return area;
}

template <typename Make> auto shown(Make make)
{
    return [make](const Filled &input) {
        Window window = make(input);
        window->resize(400, 600);
        window->show();
        QCoreApplication::processEvents();
        return window;
    };
}

/// The names of the editors with their texts.
constexpr auto texts = [](const Window &window) {
    QStringList all;
    const QList<QGroupBox *> boxes = window->findChildren<QGroupBox *>();
    for (const QGroupBox *box : boxes) {
        const QList<QLineEdit *> editors = box->findChildren<QLineEdit *>();
        for (const QLineEdit *editor : editors)
            all.append(editor->objectName() + QLatin1Char('=') + editor->text());
    }
    return all;
};

} // namespace

/// Values of none of the parameters, so that each is marked as missing.
Filled empty(int size)
{
    Filled input = filled(size);
    for (auto &value : input.values)
        value = { QString(), QString() };
    return input;
}

void addFormRows()
{
    const Row row { "form of n parameters, built and filled", { 100, 250, 500, 1000, 2000 } };
    compare(row, texts, library(filled, form),
            baseline("bare QLabel and QLineEdit (at most 2)", 2000, filled, bareWidgets));
    const Row shownRow { "the same, and shown", row.sizes };
    compare(shownRow, texts, library(filled, shown(form)),
            baseline("bare QLabel and QLineEdit (at most 2)", 2000, filled, shown(bareWidgets)));
    const Row emptyRow { "form of n missing values, built and shown", row.sizes };
    compare(emptyRow, texts, library(empty, shown(form)),
            baseline("bare QLabel and QLineEdit (at most 2)", 2000, empty, shown(bareWidgets)));
}
