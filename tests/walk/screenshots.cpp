// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "screenshots.h"

#include "walker.h"

#include <QFile>
#include <QImage>

#include "support/referencefile.h"

#include <cstdio>

namespace {

/// Whether the pictures are equal up to how edges are rendered, in all but a hundredth of their
/// area.
bool looksAlike(const QImage &first, const QImage &second)
{
    if (first.size() != second.size())
        return false;
    const auto coarse = [](const QImage &image) {
        return image.scaled(image.size() / 8, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_Grayscale8);
    };
    const QImage left = coarse(first);
    const QImage right = coarse(second);
    int different = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x)
            different += qAbs(qGray(left.pixel(x, y)) - qGray(right.pixel(x, y))) > 32;
    }
    return different * 100 <= left.width() * left.height();
}

void compare(const Walker &walker, const QString &path, const QString &taken)
{
    const QImage now(taken);
    const QImage then(path);
    const QString advice = path + " to look like " + taken
        + "; to take over the latter, walk with KELTO_TAKE_REFERENCES=1";
    if (now.text("Shown") != then.text("Shown"))
        walker.fail(advice, lineDifference(then.text("Shown"), now.text("Shown")));
    // Another font moves everything.
    if (now.text("Font") != then.text("Font"))
        std::printf("  compares only the texts of %s: it was taken in %s, this is %s\n",
                    qPrintable(path), qPrintable(then.text("Font")), qPrintable(now.text("Font")));
    else if (!looksAlike(now, then))
        walker.fail(advice, "another picture with the same texts");
}

} // namespace

void compareScreenshots(const Walker &walker)
{
    for (const char *name : { "dialog", "results", "study" }) {
        const QString path = QString(KELTO_SCREENSHOTS "/screenshot-%1.png").arg(name);
        const QStringList taken
            = walker.directory().entryList({ QString("*-%1.png").arg(name) }, QDir::Files);
        if (taken.isEmpty())
            walker.fail("a picture of " + QString(name), "none");
        const QString picture = walker.directory().absoluteFilePath(taken.first());
        if (!qEnvironmentVariableIsSet("KELTO_TAKE_REFERENCES"))
            compare(walker, path, picture);
        else if ((QFile::remove(path), !QFile::copy(picture, path)))
            walker.fail("a new " + path, "it cannot be written");
    }
}
