// What a pick leaves on the real canvas: an item that was picked and picked again looks, pixel for
// pixel, as if nobody had touched it.
#include <gtest/gtest.h>

#include <QImage>

#include "ProgramOnQt.h"
#include "canvas/gestures/Selection.h"
#include "canvas/view/Painting.h"
#include "qt/QtImages.h"

namespace ladrix {
namespace {

struct View {
    double pixelRatio;
    Single zoom;
    bool thick, grid, black;
};

std::ostream& operator<<(std::ostream& out, const View& view) {
    return out << "ratio " << view.pixelRatio << ", zoom " << view.zoom
               << (view.thick ? ", thick" : "") << (view.grid ? ", grid" : "")
               << (view.black ? ", black" : "");
}

Device line(Single x, Single y, Single x2, Single y2, Long color, const char* tag = "") {
    Device device;
    device.name = "InsertSavedLine";
    device.x = x;
    device.y = y;
    device.x2 = x2;
    device.y2 = y2;
    device.color = color;
    device.widthTag = tag;
    return device;
}

Device square(Single x, Single y, Single x2, Single y2, const char* tag) {
    Device device = line(x, y, x2, y2, Blue, tag);
    device.name = "InsertSavedSquare";
    return device;
}

Device round(const char* name, Single x, Single y, Single radius, Single aspect, Long color) {
    Device device;
    device.name = name;
    device.x = x;
    device.y = y;
    device.radius = radius;
    device.aspect = aspect;
    device.startAngle = 0.3f;
    device.endAngle = 4;
    device.color = color;
    return device;
}

Device symbol(const char* name, Single x, Single y, Single scaleX, Single scaleY, Long color) {
    Device device;
    device.name = name;
    device.x = x;
    device.y = y;
    device.scaleX = scaleX;
    device.scaleY = scaleY;
    device.color = color;
    return device;
}

// Lines, curves and fills of several pens, across each other and across a picture; what lies apart
// changes pens between them.
std::vector<Device> crossedDevices() {
    return {line(0.6f, 0.71f, 2.93f, 1.87f, Black),
            line(0.61f, 1.83f, 2.9f, 0.77f, Black, "DrawWidth=2"),
            line(5, 5, 5.5f, 5.5f, Red),
            line(1.333f, 0.5f, 1.777f, 2.3f, Red),
            line(1, 1.213f, 3, 1.213f, Black),
            round("InsertCircle", 1.2f, 1.2f, 0.4f, 1, Black),
            round("InsertSolidCircle", 1.55f, 1.21f, 0.05f, 1, Black),
            round("InsertCircle", 1.1f, 1.33f, 0.57f, 0.6f, Black),
            round("InsertArc", 1.7f, 1.4f, 0.45f, 1.3f, Blue),
            line(5, 5.2f, 5.5f, 5.5f, Blue),
            symbol("InsertRelayCoil", 1.4f, 1.3f, 1, 1, Black),
            symbol("InsertLamp", 1.51f, 1.27f, 1.3f, 0.8f, Black),
            symbol("InsertContactNO", 1.2f, 1.5f, -1, 1, Red),
            square(0.9f, 0.9f, 2.2f, 1.71f, "3"),
            square(1.05f, 0.83f, 2.31f, 1.6f, "")};
}

std::shared_ptr<const Picture> stripes() {
    QImage image(60, 40, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor(x * 4, y * 6, (x + y) % 7 * 30));
    return std::make_shared<QtPicture>(image);
}

class PickPaintTest : public test::ProgramOnQt {
  protected:
    void show(const View& view) {
        ASSERT_NO_FATAL_FAILURE(startAnew());
        Editor& editor = program->editor;
        for (const Device& device : crossedDevices())
            editor.drawing.devices.append(device);
        editor.drawing.PictureTable = {{0.5f, 0.6f, 1.43f, 0.81f, "a.png", "", false}};
        editor.drawing.PictureCount = 1;
        editor.img = {stripes()};
        editor.ZoomFactor = view.zoom;
        editor.GridOn = view.grid;
        editor.BlackBackground = view.black;
        editor.symbols.ThickDevices = view.thick;
        canvas.DrawWidth = view.thick ? 2 : 1;
        canvas.BackColor = view.black ? Black : White;
        canvas.resize({420, 330}, view.pixelRatio);
        canvas.SetScale(0.37f, 0.29f, view.zoom);
        paintDrawing(editor);
        canvas.takeDamage();
    }
    QImage layer() { return canvas.persistentLayer().copy(); }
    void pickByGrip(std::size_t i) {
        const DeviceTable& devices = program->editor.drawing.devices;
        program->editor.form.pointer.picGrip = {true, devices.DeviceX[i], devices.DeviceY[i], 0, 0};
        picGrip_Click(program->editor);
    }
    void pickByBand(Single left, Single top, Single right, Single bottom) {
        Gesture& gesture = program->editor.gesture;
        gesture.BandX[0] = left;
        gesture.BandX[1] = right;
        gesture.BandY[0] = top;
        gesture.BandY[1] = bottom;
        pickInBand(program->editor);
    }
    std::size_t count() {
        return static_cast<std::size_t>(program->editor.drawing.devices.DeviceCount);
    }
};

// Where two images differ: "83,35 1x46"; empty where they do not.
std::string difference(const QImage& a, const QImage& b) {
    QRect bounds;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.pixel(x, y) != b.pixel(x, y)) bounds |= QRect(x, y, 1, 1);
    if (bounds.isNull()) return {};
    const auto text = [](int a1, const char* mark, int b1) {
        return std::to_string(a1) + mark + std::to_string(b1);
    };
    return text(bounds.x(), ",", bounds.y()) + ' ' + text(bounds.width(), "x", bounds.height());
}

std::vector<View> views() {
    std::vector<View> all;
    for (const double ratio : {1.0, 1.5, 2.0})
        for (const Single zoom : {0.64f, 1.0f, 1.25f, 3.8147f})
            for (const bool thick : {false, true})
                for (const bool grid : {false, true})
                    all.push_back({ratio, zoom, thick, grid, grid == thick});
    return all;
}

class PickPaintView : public PickPaintTest, public testing::WithParamInterface<View> {};

INSTANTIATE_TEST_SUITE_P(Views, PickPaintView, testing::ValuesIn(views()));

TEST_P(PickPaintView, PickedAndPickedAgainAnItemLooksAsBefore) {
    ASSERT_NO_FATAL_FAILURE(show(GetParam()));
    const QImage before = layer();
    int seen = 0;
    for (std::size_t i = 0; i < count(); ++i) {
        pickByGrip(i);
        seen += layer() != before;
        pickByGrip(i);
        ASSERT_EQ(difference(layer(), before), "")
            << program->editor.drawing.devices.DeviceName[i] << ' ' << i;
    }
    EXPECT_GE(seen, 8) << "the picks themselves show";

    pickByBand(0, 0, 4, 4);
    ASSERT_NE(layer(), before);
    pickByBand(0, 0, 4, 4);
    EXPECT_EQ(difference(layer(), before), "") << "a band over all";
    pickLines(program->editor, 1.5f, 1.25f);
    ASSERT_NE(layer(), before);
    pickLines(program->editor, 1.5f, 1.25f);
    EXPECT_EQ(difference(layer(), before), "") << "lines by their own click";
}

TEST_F(PickPaintTest, APickTakenBackPaintsNothingOutsideItsPlace) {
    ASSERT_NO_FATAL_FAILURE(show({1, 1, false, true, false}));
    const std::size_t coil = 10;
    pickByGrip(coil);
    canvas.takeDamage();
    // A mark that is in no table stays wherever the canvas is not painted.
    canvas.Line(0.5f, 2.5f, 3, 2.5f, Red, LineForm::Plain);
    const QPoint mark = canvas.toPixels(2, 2.5f).toPoint();
    canvas.takeDamage();
    pickByGrip(coil);
    EXPECT_EQ(canvas.persistentLayer().pixelColor(mark), QColor(Qt::red));
    const QRect damage = canvas.takeDamage().boundingRect();
    EXPECT_FALSE(damage.isEmpty());
    EXPECT_LT(damage.width(), 120);
    EXPECT_LT(damage.height(), 120);
}

}  // namespace
}  // namespace ladrix
