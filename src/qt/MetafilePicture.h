// Windows metafiles (.wmf), read by the converter of libwmf in a process of its own: what it does
// with a damaged or hostile file is bounded in time, memory and output.
#pragma once

#include <QImage>

namespace ladrix {

// Image pixels to one pixel of the picture's size, so that lines stay fine on paper.
constexpr int MetafileDensity = 3;

struct MetafileLimits {
    QString converter = QStringLiteral("wmf2svg");  // a program of the search path
    int milliseconds = 5000;
    qint64 memoryBytes = 512ll * 1024 * 1024;
    qint64 outputBytes = 16ll * 1024 * 1024;
};

// By its name.
bool isMetafile(const QString& path);

// At MetafileDensity times its own size of 96 pixels to the inch, less where that would be too
// large. Throws a Failure if it cannot be read within the limits or the converter is not there.
QImage readMetafile(const QString& path, const MetafileLimits& limits = {});

}  // namespace ladrix
