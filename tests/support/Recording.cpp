#include "support/Recording.h"

#include <ostream>
#include <sstream>
#include <utility>

namespace ladrix::test {

namespace {

void describeLine(std::ostream& out, const Primitive& line) {
    out << "Line " << line.x1 << ',' << line.y1 << ' ' << line.x2 << ',' << line.y2;
    if (line.form == LineForm::Box) out << " Box";
    if (line.form == LineForm::FilledBox) out << " FilledBox";
}

void describeRound(std::ostream& out, const Primitive& round) {
    const bool isArc = round.kind == Primitive::Kind::Arc;
    out << (isArc ? "Arc " : "Circle ") << round.x1 << ',' << round.y1 << " radius "
        << round.radius;
    if (isArc) out << " from " << round.start << " to " << round.end;
    if (round.aspect != 1) out << " aspect " << round.aspect;
    if (round.FillStyle == 0) out << " filled " << round.FillColor;
}

void describeText(std::ostream& out, const Primitive& line) {
    out << "Text " << line.x1 << ',' << line.y1 << " \"" << line.text << "\" " << line.font.name
        << ' ' << line.font.size << (line.font.bold ? " bold" : "")
        << (line.font.italic ? " italic" : "");
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Primitive& primitive) {
    switch (primitive.kind) {
        case Primitive::Kind::Line:
            describeLine(out, primitive);
            break;
        case Primitive::Kind::Circle:
        case Primitive::Kind::Arc:
            describeRound(out, primitive);
            break;
        case Primitive::Kind::Text:
            describeText(out, primitive);
            return out << " color " << primitive.color;
        case Primitive::Kind::Picture:
            return out << "Picture " << primitive.x1 << ',' << primitive.y1 << ' ' << primitive.x2
                       << " by " << primitive.y2 << " of " << primitive.pixelWidth << 'x'
                       << primitive.pixelHeight << " pixels";
    }
    return out << " color " << primitive.color << " width " << primitive.DrawWidth << " style "
               << primitive.DrawStyle;
}

std::string describe(const Primitive& primitive) {
    std::ostringstream out;
    out << primitive;
    return out.str();
}

void RecordingPicture::SetScale(Single left, Single top, Single wide, Single high) {
    scaleLeft = left;
    scaleTop = top;
    scaleWidth = wide;
    scaleHeight = high;
}

std::shared_ptr<const Picture> RecordingPicture::Image() {
    std::ostringstream bitmap;
    bitmap << "BM " << width << " by " << height << " on " << BackColor << '\n';
    for (const Primitive& primitive : primitives)
        bitmap << primitive << '\n';
    return std::make_shared<FakePicture>(width, height, bitmap.str());
}

void RecordingCanvas::Cls() {
    if (repainting_) return temporary.clear();
    ++(AutoRedraw ? persistentCls : temporaryCls);
    temporary.clear();
    if (AutoRedraw) persistent.clear();
}

void RecordingCanvas::repaint(const Extent& place, const std::function<void()>& paint) {
    repainted.push_back(place);
    const Extent formerly = std::exchange(view, place);
    repainting_ = true;
    paint();
    repainting_ = false;
    view = formerly;
}

void RecordingCanvas::SetScale(Single left, Single top, Single zoom) {
    scaleLeft = left;
    scaleTop = top;
    scaleZoom = zoom;
    ++scaleChanges;
}

std::string RecordingCanvas::Image(Single width, Single height,
                                   const std::function<void()>& paint) {
    const std::vector<Primitive> formerly = std::exchange(persistent, {});
    paint();
    std::ostringstream text;
    text << width << 'x' << height << '\n';
    for (const Primitive& primitive : persistent)
        text << primitive << '\n';
    persistent = formerly;
    return text.str();
}

void RecordingCanvas::keep(const Primitive& primitive) {
    (AutoRedraw ? persistent : temporary).push_back(primitive);
}

}  // namespace ladrix::test
