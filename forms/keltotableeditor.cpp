// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "keltotableeditor_p.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

class KeltoTableEditorPrivate
{
public:
    QStringList value;
    QPlainTextEdit *text = nullptr;
};

KeltoTableEditor::KeltoTableEditor(int /*columns*/, KeltoParameterModel::Kind /*cellKind*/,
                                   QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<KeltoTableEditorPrivate>())
{
    d->text = new QPlainTextEdit(this);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(QMargins());
    layout->addWidget(d->text);
    setFocusProxy(d->text);
    connect(d->text, &QPlainTextEdit::textChanged, this, [this] {
        const QString text = d->text->toPlainText();
        d->value = text.isEmpty() ? QStringList() : text.split(QLatin1Char('\n'));
        Q_EMIT edited();
    });
}

KeltoTableEditor::~KeltoTableEditor() = default;

QStringList KeltoTableEditor::value() const
{
    return d->value;
}

void KeltoTableEditor::setValue(QStringList value)
{
    const QSignalBlocker blocker(d->text);
    d->text->setPlainText(value.join(QLatin1Char('\n')));
    d->value = value;
}

void KeltoTableEditor::setFindings(QVector<KeltoItemFinding> /*findings*/) { }
