// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// A host that shows a form, fills it in and prints what is stored.

#include <Kelto/Forms/KeltoParameterForm>
#include <Kelto/Forms/KeltoResultView>
#include <KeltoParameterModel>

#include <QApplication>
#include <QLineEdit>
#include <QTextStream>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    KeltoParameterForm form(
        { VParameter(2.0, QStringLiteral("Length"), QStringLiteral("mm"), QStringLiteral("L")) });
    const KeltoResultView view;
    qobject_cast<QLineEdit *>(form.editor(QStringLiteral("Length")))->setText(QStringLiteral("5"));
    const KeltoParameterModel *model = form.model();
    const auto values = model->values();
    for (const auto &value : values)
        QTextStream(stdout) << value.first << '=' << value.second.toString() << '\n';
    return model->isComplete() ? 0 : 1;
}
