// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/AUTH_SET>
#include <Kelto/Forms/KeltoParameterForm>
#include <Kelto/Forms/KeltoResultView>
#include <Kelto/UTaskSelectDialog>

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryFile>
#include <QVBoxLayout>

#include <cmath>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    // The module stands in a file. Kelto would take a missing one for an empty one.
    const QString moduleFile = QCoreApplication::applicationDirPath() + "/cantilever.ini";
    if (!QFileInfo::exists(moduleFile)) {
        QMessageBox::critical(nullptr, "Minimal", "There is no file " + moduleFile);
        return 1;
    }
    AUTH_INF cantilever;
    cantilever.load_ini(moduleFile);
    AUTH_SET registry("Minimal", "1.0", { cantilever });

    // The user confirms the mode. Without a current one the dialog would have nothing selected.
    registry.current_group = cantilever.group;
    registry.current_mode = cantilever.inner_mode_nameList.value(0);
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    dialog.show(); // waits until it is closed
    if (dialog.operateIndex != 0)
        return 0; // cancelled
    const int mode = registry.exclusive_group_select(registry.current_group);

    // The form knows names, units, defaults and limits from the file.
    QWidget window;
    KeltoParameterForm form(&registry, registry.current_group, mode);
    QPushButton calculate("&Calculate");
    KeltoResultView results;
    QVBoxLayout layout(&window);
    layout.addWidget(&form);
    layout.addWidget(&calculate);
    layout.addWidget(&results);

    // The values of the last time. Kelto says nothing when it cannot store new ones.
    if (!QTemporaryFile("minimal-XXXXXX").open())
        QMessageBox::warning(nullptr, "Minimal", "Values cannot be stored in this directory.");
    const QString valueFile = "minimal-values.ini";
    QVector<QPair<QString, QVariant>> values;
    if (QFileInfo::exists(valueFile) && registry.load(valueFile, &values))
        form.setValues(values);

    // One can calculate when nothing is missing or wrong. A changed value ends the result.
    calculate.setEnabled(form.isComplete());
    QObject::connect(&form, &KeltoParameterForm::completeChanged, &calculate,
                     &QPushButton::setEnabled);
    QObject::connect(&form, &KeltoParameterForm::edited, &results, [&] { results.setResults({}); });
    QObject::connect(&calculate, &QPushButton::clicked, &window, [&] {
        values = form.values();
        registry.save(valueFile, &values);
        registry.getCalculationLData(values);
        const auto value = [&](const char *key) {
            return registry.value_cal(QString("Attribute/") + key).toDouble();
        };
        const double inertia = value("Width") * std::pow(value("Height"), 3) / 12; // mm⁴
        const double force = value("Force") / (mode == 0 ? 3 : 8); // at the end, or spread out
        const double w = force * std::pow(value("Length"), 3) / value("Elastic modulus") / inertia;
        const KeltoItemHints hints(&registry, registry.current_group, mode);
        results.setResults(hints.results(), { { "Deflection", w } }, hints);
    });

    window.show();
    return application.exec();
}
