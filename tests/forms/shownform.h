// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef SHOWNFORM_H
#define SHOWNFORM_H

#include "forms/formitems.h"

#include <Kelto/Forms/KeltoParameterForm>
#include <Kelto/Forms/KeltoParameterModel>

#include <QTest>

#include <memory>

using Form = KeltoParameterForm;
using Model = KeltoParameterModel;

/// The form of the mode of @p item, with the focus; null where it could not be shown.
inline std::unique_ptr<Form> shownForm(const AUTH_INF &item)
{
    const AUTH_SET registry = registryOf(item);
    auto form = std::make_unique<Form>(&registry, "Statics", "Bend");
    form->resize(500, 600);
    form->show();
    return QTest::qWaitForWindowActive(form.get()) ? std::move(form) : nullptr;
}

/// What the form stores for a parameter.
inline QVariant stored(const Form &form, const QString &key)
{
    const Entries values = form.values();
    for (const auto &value : values) {
        if (value.first == "Attribute/" + key)
            return value.second;
    }
    return QVariant();
}

/// The editor of a parameter, found as a host finds it.
template <typename Editor> Editor *editorOf(const Form &form, const QString &key)
{
    return qobject_cast<Editor *>(form.findChild<QWidget *>(key));
}

#endif
