// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "fuzzing.h"

#include <QApplication>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace {

/// Qt warns about nearly every hostile input.
void dropWarnings(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "Qt: %s\n", qPrintable(message));
}

/// Qt reads images and cursors in another way where there are no windows.
QCoreApplication *createApplication(int &argc, char **argv)
{
    const QByteArray kind = qgetenv("KELTO_FUZZ_APPLICATION");
    if (kind == "none")
        return nullptr;
    if (kind == "console")
        return new QCoreApplication(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return new QApplication(argc, argv);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qInstallMessageHandler(dropWarnings);
    // libFuzzer ends its program without a chance to delete it.
    static QCoreApplication *const application = createApplication(*argc, *argv);
    Q_UNUSED(application)
    return 0;
}

namespace Fuzzing {

void check(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "Not so: %s\n", what);
    std::abort();
}

QStringList lines(const std::uint8_t *data, std::size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size))
        .split(QLatin1Char('\n'));
}

InputFile::InputFile(const QByteArray &bytes)
    : m_path(nextPath())
{
    QFile file(m_path);
    check(file.open(QIODevice::WriteOnly), "there is room for the input");
    file.write(bytes);
}

QByteArray InputFile::bytes() const
{
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString InputFile::freshCopy()
{
    const QString copy = nextPath();
    check(QFile::copy(m_path, copy), "there is room for a copy");
    return copy;
}

QString InputFile::nextPath()
{
    return m_directory.filePath(QString::number(++m_paths) + QLatin1String(".ini"));
}

} // namespace Fuzzing
