// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// Runs the inputs of the folders that it is given, without libFuzzer. An input that ends it is the
// last that it has named.

#include "fuzzing.h"
#include "largeinputs.h"
#include "support/outofmemory.h"

#include <QDir>
#include <QFile>

#include <cstdio>

namespace {

void run(const QString &name, const QByteArray &bytes)
{
    std::fprintf(stderr, "%s\n", qPrintable(name));
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size()));
}

int runFolder(const QString &path)
{
    const QFileInfoList infos = QDir(path).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &info : infos) {
        QFile file(info.filePath());
        if (file.open(QIODevice::ReadOnly))
            run(info.filePath(), file.readAll());
    }
    return infos.size();
}

} // namespace

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    int inputs = 0;
    for (int i = 1; i < argc; ++i)
        inputs += runFolder(QFile::decodeName(argv[i]));
#ifdef KELTO_FUZZ_TAKES_FILES
    const auto largeOnes = largeInputs();
    for (const LargeInput &input : largeOnes)
        run(QLatin1String(input.name), input.bytes);
#endif
    // A folder that has moved is not to look like success.
    return inputs > 0 ? 0 : 1;
}
