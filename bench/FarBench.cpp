// Lines that end far outside the view and circles of any radius, beside the same number of lines
// and arcs that are no more than what is seen of them.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <functional>

#include "Measure.h"
#include "qt/PageFile.h"
#include "qt/QtPainterPage.h"

namespace {

using namespace ladrix;
using namespace ladrix::bench;

constexpr int Rounds = 9;
constexpr int Count = 5000;
constexpr double Limit = 1.5;
constexpr Single PageWidth = 8.5f, PageHeight = 11, Far = 32767;

using Paint = std::function<void(Page&)>;

void onScreen(const Paint& paint) {
    QImage image(816, 1056, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QtPainterPage page("bench");
    page.reset(&painter, {});
    paint(page);
    page.flush();
}

void onPaper(const Paint& paint) {
    PageContent content;
    content.width = static_cast<double>(PageWidth);
    content.height = static_cast<double>(PageHeight);
    content.paint = paint;
    QtPageFiles().make(content, PageFormat::Pdf, 0);
}

Single across(int i) {
    return PageWidth * static_cast<Single>(i) / Count;
}

// From the upper edge down, as far as the page goes or far beyond.
Paint lines(Short width, Single end) {
    return [=](Page& page) {
        page.DrawWidth = width;
        for (int i = 0; i < Count; ++i)
            page.Line(across(i), 0, across(i) + end / Far, end, Black, LineForm::Plain);
    };
}

// The rim runs down the page; as a whole circle, or as the arc of it that is seen.
Paint circles(Short width, Single radius, bool whole) {
    const double half = static_cast<double>(PageHeight / 2 / radius);
    return [=](Page& page) {
        page.DrawWidth = width;
        for (int i = 0; i < Count; ++i) {
            const Single x = across(i) - radius;
            if (whole) {
                page.Circle(x, PageHeight / 2, radius, Black, 1);
            } else {
                page.Arc(x, PageHeight / 2, radius, Black, -half, half, 1);
            }
        }
    };
}

void compare(const std::string& title, const Paint& far, const Paint& seen) {
    printLine(title + ", screen",
              byTurns(
                  Rounds, [&] { onScreen(far); }, [&] { onScreen(seen); }),
              Limit);
    printLine(title + ", PDF",
              byTurns(
                  Rounds, [&] { onPaper(far); }, [&] { onPaper(seen); }),
              Limit);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    printHeading("5,000 far lines and huge circles beside their visible parts, ms");
    for (const Short width : {Short{1}, Short{2}}) {
        const std::string pen = ", width " + std::to_string(width);
        compare("lines" + pen, lines(width, Far), lines(width, PageHeight));
        for (const Single radius : {30.f, 1000.f, Far})
            compare("circles of " + std::to_string(static_cast<int>(radius)) + " inches" + pen,
                    circles(width, radius, true), circles(width, radius, false));
    }
    return 0;
}
