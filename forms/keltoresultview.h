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

/**
 * The results of a calculation with their names, symbols, values and units, by sub-groups and in
 * the order of the hints.
 *
 * A value may be a number, a text, a point, or a list of these: a QStringList in the forms of
 * KeltoItemParameterTransform, a QVariantList, a QVector of numbers or points, or a QPolygonF.
 * Numbers are rounded where they are shown; tool tips, cells for a spreadsheet and files have them
 * with all digits. A text counts as number where the result's object name is a word for numbers.
 *
 * Numbers are written in the locale of the widget. The commands, which are in the context menu and
 * have shortcuts, concern the selected results, or all where none is selected.
 */
class KELTO_FORMS_EXPORT KeltoResultView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int significantDigits READ significantDigits WRITE setSignificantDigits NOTIFY
                   significantDigitsChanged)

public:
    explicit KeltoResultView(QWidget *parent = nullptr);
    ~KeltoResultView() override;

    /**
     * Shows @p results instead of the ones before, in the order of @p hints and with their labels
     * and help.
     *
     * Of @p values each result gets the first under its key, which may stand behind "Result/" or
     * "Attribute/". Without one it has its own value, VParameter::value(). Values under other keys
     * are not shown.
     *
     * @param results such as KeltoItemHints::results().
     */
    void setResults(QVector<VParameter> results,
                    QVector<QPair<QString, QVariant>> values = QVector<QPair<QString, QVariant>>(),
                    KeltoItemHints hints = KeltoItemHints());

    /// How many digits of a number are shown, between 1 and 17; 6 at first. Whole numbers are shown
    /// whole.
    int significantDigits() const;
    void setSignificantDigits(int digits);

    /// All results as text for a person, one line per value, below the names of their sub-groups.
    QString text() const;
    /// All results as CSV (RFC 4180) with one line per value: sub-group, name, symbol, unit, value,
    /// and further columns for points and rows of tables. Numbers are in the C locale.
    QString csv() const;
    /// Writes csv() to a file, in UTF-8. A file that cannot be written stays as it was.
    /// @param problem is set to a sentence for a person, or emptied.
    /// @return whether it was written.
    bool saveCsv(QString path, QString *problem = nullptr) const;

public Q_SLOTS:
    /// Copies the selected results as text().
    void copyAsText();
    /// Copies the selected results as a spreadsheet takes them: like csv(), but with tabs, in the
    /// locale of the widget and without headings.
    void copyAsCells();
    /// Lets the user choose a file for saveCsv(), and says what is wrong with it.
    void exportCsv();

Q_SIGNALS:
    void significantDigitsChanged(int digits);

protected:
    /// Sets all texts anew when the language or the locale has changed.
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<KeltoResultViewPrivate> d;
};

#endif
