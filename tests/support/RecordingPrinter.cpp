#include "support/RecordingPrinter.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace ladrix::test {

namespace {

template <class... Parts>
std::string joined(const Parts&... parts) {
    std::ostringstream text;
    (text << ... << parts);
    return text.str();
}

}  // namespace

std::vector<std::string> RecordingPrinter::logged(std::string_view start) const {
    std::vector<std::string> found;
    std::copy_if(log.begin(), log.end(), std::back_inserter(found),
                 [&](const std::string& entry) { return entry.starts_with(start); });
    return found;
}

void RecordingPrinter::raise(std::string_view entry) const {
    for (const Fault& fault : faults_)
        if (entry.starts_with(fault.step)) throw fault.failure;
}

void RecordingPrinter::enter(std::string entry) {
    raise(entry);
    log.push_back(std::move(entry));
}

void RecordingPrinter::keep(Primitive primitive) {
    primitive.DrawWidth = DrawWidth;
    primitive.DrawStyle = DrawStyle;
    primitive.FillStyle = FillStyle;
    primitive.FillColor = FillColor;
    enter(describe(primitive));
}

bool RecordingPrinter::StartDoc(const PrintDocument& document) {
    documents.push_back(document);
    return takesDocuments;
}

void RecordingPrinter::SetOrientation(Short orientation) {
    enter(joined("Orientation ", orientation));
    orientation_ = orientation;
}

void RecordingPrinter::SetPaperSize(Short code) {
    enter(joined("PaperSize ", code));
    paperSize_ = code;
}

void RecordingPrinter::SetScaleMode(Short mode) {
    enter(joined("ScaleMode ", mode));
    scaleMode_ = mode;
    if (mode != TwipScale) return;
    scaleWidth_ = 12240;
    scaleHeight_ = 15840;
}

void RecordingPrinter::SetScaleWidth(Single width) {
    enter(joined("ScaleWidth ", width));
    scaleMode_ = UserScale;
    scaleWidth_ = width;
}

void RecordingPrinter::SetScaleHeight(Single height) {
    enter(joined("ScaleHeight ", height));
    scaleMode_ = UserScale;
    scaleHeight_ = height;
}

void RecordingPrinter::SetFont(const FontSpec& font) {
    enter(joined("Font ", font.name, ' ', font.size, font.bold ? " bold" : "",
                 font.italic ? " italic" : ""));
    font_ = font;
    font_.size = std::clamp(font.size, smallestFont, largestFont);
}

// Of the scale, to an inch of the paper.
Single RecordingPrinter::unitsPerInch() const {
    return scaleMode_ == TwipScale ? TwipsPerInch : 1 / (1 - marginShare);
}

Single RecordingPrinter::TextWidth(std::string_view text) {
    return 0.6f * font_.size / 72 * static_cast<Single>(text.size()) * unitsPerInch();
}

Single RecordingPrinter::TextHeight(std::string_view) {
    return 1.2f * font_.size / 72 * unitsPerInch();
}

void RecordingPrinter::PSet(Single x, Single y, Long color) {
    enter(joined("PSet ", x, ',', y, " color ", color));
}

void RecordingPrinter::Print(std::string_view text) {
    enter(joined("Print ", CurrentX, ',', CurrentY, " \"", text, "\" color ", ForeColor));
    CurrentX = 0;
    CurrentY += TextHeight(text);
}

void RecordingPrinter::Line(Single x1, Single y1, Single x2, Single y2, Long color, LineForm form) {
    Primitive line;
    line.x1 = x1;
    line.y1 = y1;
    line.x2 = x2;
    line.y2 = y2;
    line.color = color;
    line.form = form;
    keep(line);
}

void RecordingPrinter::Circle(Single x, Single y, Single radius, Long color, Single aspect) {
    Primitive circle;
    circle.kind = Primitive::Kind::Circle;
    circle.x1 = x;
    circle.y1 = y;
    circle.radius = radius;
    circle.color = color;
    circle.aspect = aspect;
    keep(circle);
}

void RecordingPrinter::Arc(Single x, Single y, Single radius, Long color, double start, double end,
                           Single aspect) {
    Primitive arc;
    arc.kind = Primitive::Kind::Arc;
    arc.x1 = x;
    arc.y1 = y;
    arc.radius = radius;
    arc.color = color;
    arc.start = start;
    arc.end = end;
    arc.aspect = aspect;
    keep(arc);
}

void RecordingPrinter::PaintPicture(const Picture&, Single x, Single y, Single width, Single height,
                                    Long rasterMode) {
    enter(joined("Picture ", x, ',', y, ' ', width, " by ", height, " mode ", rasterMode));
}

std::string RecordingPrinter::EndDoc() {
    enter("EndDoc");
    return abandoned ? std::string() : outcome;
}

bool RecordingPrinters::choose(std::string_view name) {
    if (std::find(names.begin(), names.end(), name) == names.end()) return false;
    printer.deviceName = name;
    return true;
}

}  // namespace ladrix::test
