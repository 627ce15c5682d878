// The page as it will print, as a picture: what the printer would be handed, on pixels.
#pragma once

#include <QImage>

#include "output/PrintDrawing.h"
#include "qt/PrinterPage.h"

namespace ladrix {

// The whole paper, white where it is not printable. Throws a Failure if that is too large.
QImage previewPicture(Editor& editor, Short lineWeight, const PaperArea& area,
                      double pixelsPerInch);

// The paper that the drawing would be printed on by the present printer.
PaperArea previewArea(const Editor& editor);

}  // namespace ladrix
