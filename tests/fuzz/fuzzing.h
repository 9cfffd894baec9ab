// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef FUZZING_H
#define FUZZING_H

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

// What libFuzzer calls, and the replay in its place: once at the start, and with every input.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace Fuzzing {

/// Ends the program unless @p holds: that is how a fuzzer learns that an input is of interest.
void check(bool holds, const char *what);

/// An input as texts, one per line.
QStringList lines(const std::uint8_t *data, std::size_t size);

/// An input as a file. QSettings remembers files by their path, so each gets a new one.
class InputFile
{
public:
    explicit InputFile(const QByteArray &bytes);
    Q_DISABLE_COPY(InputFile)

    QString path() const { return m_path; }
    QByteArray bytes() const;
    /// The path of a copy of the file as it is now, which nothing in this process has read yet.
    QString freshCopy();

private:
    QString nextPath();

    QTemporaryDir m_directory;
    int m_paths = 0;
    QString m_path;
};

} // namespace Fuzzing

#endif
