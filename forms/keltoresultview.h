// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef KELTORESULTVIEW_H
#define KELTORESULTVIEW_H

#include "kelto_forms_export.h"

#include <Kelto/KeltoItemHints>
#include <Kelto/VParameter>

#include <QPair>
#include <QString>
#include <QVariant>
#include <QVector>
#include <QWidget>

#include <memory>

class KeltoResultViewPrivate;

/// The results of a calculation with their names, symbols and units, in the order of the hints.
class KELTO_FORMS_EXPORT KeltoResultView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int significantDigits READ significantDigits WRITE setSignificantDigits)

public:
    explicit KeltoResultView(QWidget *parent = nullptr);
    ~KeltoResultView() override;

    /// Shows @p results, each with the first of @p values under its key, or under "Attribute/" and
    /// its key, and else with its own value.
    void setResults(QVector<VParameter> results,
                    QVector<QPair<QString, QVariant>> values = QVector<QPair<QString, QVariant>>(),
                    KeltoItemHints hints = KeltoItemHints());

    /// How many digits of a number are shown and exported; 6 at first.
    int significantDigits() const;
    void setSignificantDigits(int digits);

private:
    std::unique_ptr<KeltoResultViewPrivate> d;
};

#endif
