// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Conversions of lists of texts, one text per line; the first line chooses what they are scaled as,
// the second holds the factors.

#include "fuzzing.h"

#include <KeltoItemParameterTransform>
#include <VParameter>

using Fuzzing::check;
using Transform = KeltoItemParameterTransform;

namespace {

void convertNumbers(const QStringList &texts)
{
    const QVector<double> numbers = Transform::to_array(texts);
    check(numbers.size() == texts.size(), "there is a number for every text");
    check(Transform::from_array(numbers).size() == texts.size(), "and a text for every number");
    QVector<int> wholeNumbers;
    for (const QString &text : texts)
        wholeNumbers.append(text.toInt());
    check(Transform::from_array(wholeNumbers).size() == texts.size(), "of either kind");
}

void convertPoints(const QStringList &texts)
{
    const QVector<QPointF> points = Transform::to_2Dpoints(texts);
    int expected = 0;
    while (expected < texts.size() && texts.at(expected).count(QLatin1Char('|')) == 1)
        ++expected;
    check(points.size() == expected, "points end at the first text that is none");
    check(Transform::from_2Dpoints(points).size() == expected, "there is a text for every point");
    // Pixels beyond an int are no numbers to C++ either.
    QVector<QPoint> pixels;
    for (const QString &text : texts)
        pixels.append(QPoint(text.section(QLatin1Char('|'), 0, 0).toInt(), text.toInt()));
    check(Transform::from_2Dpoints(pixels).size() == texts.size(), "of either kind");
}

void convertTables(const QStringList &texts)
{
    const QVector<QStringList> rows = Transform::to_XDpoints(texts);
    check(rows.size() == texts.size(), "there is a row for every text");
    for (int i = 0; i < rows.size(); ++i)
        check(Transform::from_XDpoints({ rows.at(i) }) == QStringList(texts.at(i)),
              "a row alone becomes its text again");
    // Each text holds all rows before it, so a few of them are enough.
    const int few = qMin(rows.size(), 20);
    check(Transform::from_XDpoints(rows.mid(0, few)).value(few - 1)
              == texts.mid(0, few).join(QString()),
          "the last text holds all rows");

    QMap<QString, QVariant> groups;
    for (const QString &text : texts)
        groups.insert(text, text);
    const auto tables = Transform::to_multiGroup(groups);
    check(tables.size() == groups.size(), "there is a table for every group");
    check(Transform::from_multiGroup(tables).size() == groups.size(),
          "and a group for every table");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QStringList texts = Fuzzing::lines(data, size);
    if (texts.size() < 2)
        return 0;
    const QString kind = texts.takeFirst();
    const QVector<double> factors = Transform::to_array(texts.takeFirst().split(QLatin1Char(' ')));
    convertNumbers(texts);
    convertPoints(texts);
    convertTables(texts);

    VParameter several({}, {}, {}, {}, {}, kind, true);
    Transform::multiplication2D(&several, texts, factors);
    VParameter single({}, {}, {}, {}, {}, kind, false);
    const QVariant product = Transform::multiplication2D(&single, texts.value(0), factors);
    check(product.userType() == QMetaType::Double, "a single value gives a number");
    check(!Transform::multiplication2D(nullptr, texts, factors).isValid(), "without a parameter");
    return 0;
}
