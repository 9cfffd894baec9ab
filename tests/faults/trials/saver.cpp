// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Saves into one file again and again, for the trials of saving: each time it opens the file anew,
// sets another key and saves. It prints the number of every save that has returned, and at the end
// how long the last value is that it reads itself; -1 for none.
//   saver {store|registry|qsettings} FILE PREFIX COUNT LENGTH

#include <Kelto/AUTH_SET>
#include <Kelto/VIniSettings>

#include <QCoreApplication>
#include <QSettings>

#include <cstdio>

namespace {

QVariant used(const QString &path, const QString &key, const QVariant &value)
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setIniCodec("utf-8");
    if (value.isValid())
        settings.setValue(key, value);
    settings.sync();
    return settings.value(key);
}

void save(const QString &way, const QString &path, const QString &key, const QString &value)
{
    if (way == "qsettings") {
        used(path, key, value);
    } else if (way == "registry") {
        const QVector<QPair<QString, QVariant>> values { { key, value } };
        AUTH_SET().save(path, &values);
    } else {
        VIniSettings store(path);
        store.setValue(key, value);
        store.saveLocal();
    }
}

int readLength(const QString &way, const QString &path, const QString &key)
{
    const QVariant value
        = way == "qsettings" ? used(path, key, QVariant()) : VIniSettings(path).value(key);
    return value.isValid() ? value.toString().size() : -1;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 6)
        return 2;
    const QString way = arguments.at(1);
    const QString path = arguments.at(2);
    QString key;
    for (int i = 0; i < arguments.at(4).toInt(); ++i) {
        key = QString("%1/k%2").arg(arguments.at(3)).arg(i);
        save(way, path, key, QString(arguments.at(5).toInt(), 'x'));
        std::printf("%d\n", i);
        std::fflush(stdout);
    }
    std::printf("reads %d\n", readLength(way, path, key));
    return 0;
}
