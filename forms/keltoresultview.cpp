// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltoresultview.h"

class KeltoResultViewPrivate
{
public:
    int significantDigits = 6;
};

KeltoResultView::KeltoResultView(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<KeltoResultViewPrivate>())
{
}

KeltoResultView::~KeltoResultView() = default;

void KeltoResultView::setResults(QVector<VParameter> /*results*/,
                                 QVector<QPair<QString, QVariant>> /*values*/,
                                 KeltoItemHints /*hints*/)
{
}

int KeltoResultView::significantDigits() const
{
    return d->significantDigits;
}

void KeltoResultView::setSignificantDigits(int digits)
{
    d->significantDigits = digits;
}
