// One pointer move with a symbol in hand over the largest drawing: what its handling costs, and its
// frame beside a repaint of a cached image of the same size. The drawing's own layer must come out
// of it untouched.
#include <QMouseEvent>

#include "EditorWindow.h"
#include "FullDrawing.h"
#include "Measure.h"
#include "canvas/tools/Tools.h"
#include "canvas/view/Painting.h"

namespace {

using namespace ladrix;
using namespace ladrix::bench;

constexpr int Moves = 400;
constexpr double HandlingLimit = 1;  // milliseconds
constexpr double FrameLimit = 2;

// A bare window that shows a cached image.
class ImageWidget final : public QWidget {
  public:
    explicit ImageWidget(QSize size) : image_(size, QImage::Format_RGB32) {
        image_.fill(Qt::white);
        setAttribute(Qt::WA_OpaquePaintEvent);
        resize(size);
        show();
        QCoreApplication::processEvents();
    }

  protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawImage(0, 0, image_); }

  private:
    QImage image_;
};

// Over the whole canvas, on snap points and off them.
QPointF placeOf(int move, QSize canvas) {
    return {QtCanvas::Margin + 137.0 * move -
                (canvas.width() - 40) * (137 * move / (canvas.width() - 40)),
            QtCanvas::Margin + 24.0 * (move % 40)};
}

void fill(EditorWindow& window) {
    window.editor().drawing.PageLayoutKey = "17x22Landscape";
    window.editor().drawing.devices = fullTable(symbolsOfEight(Outlines::Curved), LargestCount,
                                                window.visibleWidth(), window.visibleHeight());
    RedrawDrawing(window.editor());
    cmdSym_Click(window.editor(), 40);
    window.showAll();
}

void movePointer(QWidget& canvas, QPointF place) {
    QMouseEvent move(QEvent::MouseMove, place, canvas.mapToGlobal(place), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&canvas, &move);
}

}  // namespace

int main(int argc, char** argv) {
    chooseDisplay();
    try {
        EditorWindow window(argc, argv);
        fill(window);
        QWidget& canvas = window.window->canvas();
        ImageWidget bare(canvas.size());
        const qint64 layer = window.machine.picLX.persistentLayer().cacheKey();
        const auto paint = [] { QCoreApplication::processEvents(); };

        std::vector<double> handling, frames, cached;
        for (int move = 0; move < Moves; ++move) {
            handling.push_back(
                milliseconds([&] { movePointer(canvas, placeOf(move, canvas.size())); }));
            frames.push_back(milliseconds(paint));
            bare.update();
            cached.push_back(milliseconds(paint));
        }
        printHeading("One pointer move with a ghost over 32,767 devices, ms");
        printLine("handling beside 1 ms", {median(handling), 1}, HandlingLimit);
        printLine("frame beside a cached image's repaint", {median(frames), median(cached)},
                  FrameLimit);
        if (window.machine.picLX.persistentLayer().cacheKey() != layer)
            throw std::runtime_error("a pointer move has redrawn the drawing");
        std::printf("The drawing's layer was not touched by %d moves.\n", Moves);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "PointerBench: %s\n", error.what());
        return 1;
    }
    return 0;
}
