// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Saves into one file again and again, for the trials of saving: each time it opens the file anew,
// sets another key and saves. It prints the number of every save that has returned, and at the end
// how long the last value is that it reads itself; -1 for none.
//   saver {store|registry|qsettings|kconfig|glib} FILE PREFIX COUNT LENGTH

#include <Kelto/AUTH_SET>
#include <Kelto/VIniSettings>

#include <QCoreApplication>
#include <QSettings>

#include <cstdio>
#include <functional>
#include <map>
#include <string>

#ifdef KELTO_TRIALS_KCONFIG
#include <KConfig>
#include <KConfigGroup>
#endif
#ifdef KELTO_TRIALS_GLIB
#include <glib.h>
#endif

namespace {

/// Opens the file, sets a value, if there is one, and saves; the value that the key has then.
using Use = std::function<QVariant(const QString &path, const QString &group, const QString &key,
                                   const QString &value)>;

QVariant useStore(const QString &path, const QString &group, const QString &key,
                  const QString &value)
{
    VIniSettings store(path);
    if (!value.isEmpty()) {
        store.setValue(group + "/" + key, value);
        store.saveLocal();
    }
    return VIniSettings(path).value(group + "/" + key);
}

QVariant useRegistry(const QString &path, const QString &group, const QString &key,
                     const QString &value)
{
    const QVector<QPair<QString, QVariant>> values { { group + "/" + key, value } };
    if (!value.isEmpty())
        AUTH_SET().save(path, &values);
    return VIniSettings(path).value(group + "/" + key);
}

QVariant useQSettings(const QString &path, const QString &group, const QString &key,
                      const QString &value)
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setIniCodec("utf-8");
    if (!value.isEmpty())
        settings.setValue(group + "/" + key, value);
    settings.sync();
    return settings.value(group + "/" + key);
}

#ifdef KELTO_TRIALS_KCONFIG
QVariant useKConfig(const QString &path, const QString &group, const QString &key,
                    const QString &value)
{
    KConfig config(path, KConfig::SimpleConfig);
    KConfigGroup entries = config.group(group);
    if (!value.isEmpty())
        entries.writeEntry(key, value);
    config.sync();
    return entries.hasKey(key) ? entries.readEntry(key, QString()) : QVariant();
}
#endif

#ifdef KELTO_TRIALS_GLIB
QVariant useGLib(const QString &path, const QString &group, const QString &key,
                 const QString &value)
{
    const std::string name = path.toStdString();
    const std::string section = group.toStdString();
    const std::string word = key.toStdString();
    GKeyFile *const file = g_key_file_new();
    g_key_file_load_from_file(file, name.c_str(), G_KEY_FILE_KEEP_COMMENTS, nullptr);
    if (!value.isEmpty()) {
        const std::string text = value.toStdString();
        g_key_file_set_string(file, section.c_str(), word.c_str(), text.c_str());
        g_key_file_save_to_file(file, name.c_str(), nullptr);
    }
    gchar *const text = g_key_file_get_string(file, section.c_str(), word.c_str(), nullptr);
    const QVariant read = text ? QString::fromUtf8(text) : QVariant();
    g_free(text);
    g_key_file_free(file);
    return read;
}
#endif

const std::map<QString, Use> &ways()
{
    static const std::map<QString, Use> all {
        { "store", useStore },     { "registry", useRegistry }, { "qsettings", useQSettings },
#ifdef KELTO_TRIALS_KCONFIG
        { "kconfig", useKConfig },
#endif
#ifdef KELTO_TRIALS_GLIB
        { "glib", useGLib },
#endif
    };
    return all;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const auto way = ways().find(arguments.value(1));
    if (arguments.size() != 6 || way == ways().end())
        return 2;
    const Use &use = way->second;
    const QString path = arguments.at(2);
    const QString group = arguments.at(3);
    QString key;
    for (int i = 0; i < arguments.at(4).toInt(); ++i) {
        key = QString("k%1").arg(i);
        use(path, group, key, QString(arguments.at(5).toInt(), 'x'));
        std::printf("%d\n", i);
        std::fflush(stdout);
    }
    const QVariant value = use(path, group, key, QString());
    std::printf("reads %d\n", value.isValid() ? value.toString().size() : -1);
    return 0;
}
