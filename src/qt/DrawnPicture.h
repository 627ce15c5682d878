// Pictures that are drawn, not dots: SVG, and Windows metafiles by way of SVG. They are read and
// drawn in processes of their own, so that what a damaged or hostile file can do is bounded: in
// time, in memory, and in what it reaches.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

#include "qt/PictureKind.h"

namespace ladrix {

struct DrawnLimits {
    QString converter = QStringLiteral("wmf2svg");  // of metafiles; a program of the search path
    QString worker;                                 // "": the one that belongs to this program
    int milliseconds = 5000;                        // for all processes of one picture
    qint64 memoryBytes = 512ll * 1024 * 1024;       // of each
    qint64 svgBytes = 16ll * 1024 * 1024;           // the largest text
};

struct DrawnPicture {
    QImage image;
    QSize size;  // in 1/96 inch; the image has several dots to it
};

// Svg or Wmf, of this content. Throws a Failure with the reason alone.
DrawnPicture drawPicture(PictureKind kind, const QByteArray& content,
                         const DrawnLimits& limits = {});

}  // namespace ladrix
