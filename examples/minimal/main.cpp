// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include <Kelto/AUTH_SET>
#include <Kelto/Forms/KeltoParameterForm>
#include <Kelto/Forms/KeltoResultView>
#include <Kelto/UTaskSelectDialog>
#include <QtWidgets>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QString moduleFile = QCoreApplication::applicationDirPath() + "/cantilever.ini";
    if (!QFile::exists(moduleFile)) { // Kelto would take it for an empty one
        QMessageBox::critical(nullptr, "Minimal", "There is no file " + moduleFile);
        return 1;
    }
    AUTH_INF item;
    item.load_ini(moduleFile);
    AUTH_SET registry("Minimal", "1.0", { item });

    UTaskSelectDialog dialog;
    dialog.set(&registry);
    registry.current_group = item.group; // with a mode, what is selected at first
    registry.current_mode = item.inner_mode_nameList.value(0);
    dialog.show(); // waits until it is closed
    if (dialog.operateIndex != 0)
        return 0; // cancelled
    const int mode = registry.exclusive_group_select(item.group);

    QWidget window;
    KeltoParameterForm form(&registry, item.group, mode);
    QPushButton calculate("&Calculate");
    KeltoResultView results;
    QVBoxLayout layout(&window);
    layout.addWidget(&form);
    layout.addWidget(&calculate);
    layout.addWidget(&results);

    if (!QTemporaryFile("minimal-XXXXXX").open()) // Kelto says nothing when it cannot save
        QMessageBox::warning(nullptr, "Minimal", "Values cannot be stored in this directory.");
    const QString valueFile = "minimal-values.ini"; // below the current directory
    QVector<QPair<QString, QVariant>> values;
    if (QFile::exists(valueFile) && registry.load(valueFile, &values))
        form.setValues(values);

    calculate.setEnabled(form.isComplete()); // nothing is missing or wrong
    QObject::connect(&form, &KeltoParameterForm::completeChanged, &calculate, &QWidget::setEnabled);
    QObject::connect(&form, &KeltoParameterForm::edited, &results, [&] { results.setResults({}); });
    QObject::connect(&calculate, &QPushButton::clicked, &window, [&] {
        values = form.values();
        registry.save(valueFile, &values);
        registry.getCalculationLData(values);
        const auto value
            = [&](const QString &key) { return registry.value_cal("Attribute/" + key).toDouble(); };
        const double inertia = value("Width") * qPow(value("Height"), 3) / 12; // mm⁴
        const double force = value("Force") / (mode == 0 ? 3 : 8); // at the end, or spread out
        const double w = force * qPow(value("Length"), 3) / value("Elastic modulus") / inertia;
        const KeltoItemHints hints(&registry, item.group, mode);
        results.setResults(hints.results(), { { "Deflection", w } }, hints);
    });
    window.show();
    return application.exec();
}
