#include "document/Records.h"

#include "platform/Numbers.h"

namespace ladrix {

namespace {

// Appends fields to a record, each with the separator before it.
class FieldWriter {
  public:
    FieldWriter(std::string& out, char decimalMark) : out_(out), decimalMark_(decimalMark) {}

    FieldWriter& text(std::string_view value) {
        out_ += FieldSeparator;
        out_ += value;
        return *this;
    }
    FieldWriter& single(Single value) {
        out_ += FieldSeparator;
        appendSingle(out_, value, decimalMark_);
        return *this;
    }
    FieldWriter& number(Long value) {
        out_ += FieldSeparator;
        appendLong(out_, value);
        return *this;
    }
    FieldWriter& boolean(bool value) { return text(value ? "True" : "False"); }

  private:
    std::string& out_;
    char decimalMark_;
};

Single writtenAspect(Single aspect) {
    return aspect == 0 ? 1 : aspect;
}

}  // namespace

RecordLayout recordLayout(std::string_view name) {
    if (name == "InsertSavedLine" || name == "InsertSavedSquare") {
        return RecordLayout::FreeLineOrSquare;
    }
    if (name == "InsertCircle" || name == "InsertSolidCircle") return RecordLayout::Circle;
    if (name == "InsertArc") return RecordLayout::Arc;
    if (name == "InsertSemiCircle") return RecordLayout::SemiCircle;
    return RecordLayout::Ordinary;
}

void appendDeviceRecord(std::string& out, const DeviceTable& table, Short index, char decimalMark) {
    const auto i = static_cast<std::size_t>(index);
    const std::string& widthTag = table.DeviceWidthTag[i];
    out += table.DeviceName[i];
    FieldWriter fields(out, decimalMark);
    fields.single(table.DeviceX[i]).single(table.DeviceY[i]);
    switch (recordLayout(table.DeviceName[i])) {
        case RecordLayout::FreeLineOrSquare:
            fields.single(table.DeviceX2[i]).single(table.DeviceY2[i]);
            fields.number(table.DeviceColor[i])
                .text(widthTag.empty() ? std::string_view("0") : widthTag);
            break;
        case RecordLayout::Circle:
            fields.single(table.DeviceRadius[i]).number(table.DeviceColor[i]);
            fields.text(widthTag).single(writtenAspect(table.DeviceAspect[i]));
            break;
        case RecordLayout::Arc:
            fields.single(table.DeviceRadius[i]).number(table.DeviceDirection[i]);
            fields.number(table.DeviceColor[i]).text(widthTag);
            fields.single(table.DeviceStartAngle[i]).single(table.DeviceEndAngle[i]);
            fields.single(writtenAspect(table.DeviceAspect[i]));
            break;
        case RecordLayout::SemiCircle:
            fields.single(table.DeviceRadius[i]).number(table.DeviceDirection[i]);
            fields.number(table.DeviceColor[i]).text(widthTag);
            break;
        case RecordLayout::Ordinary:
            fields.number(table.DeviceColor[i]).text(widthTag);
            fields.single(table.DeviceScaleX[i]).single(table.DeviceScaleY[i]);
            fields.number(table.DeviceOrientation[i]).boolean(table.DeviceFlip[i]);
            break;
    }
}

void appendLabelRecord(std::string& out, const LabelTable& table, Short index, char decimalMark) {
    const auto i = static_cast<std::size_t>(index);
    out += table.LabelText[i];
    FieldWriter(out, decimalMark)
        .single(table.LabelX[i])
        .single(table.LabelY[i])
        .number(table.LabelColor[i])
        .text(table.LabelFontName[i])
        .single(table.LabelFontSize[i])
        .boolean(table.LabelBold[i])
        .boolean(table.LabelItalic[i]);
}

void appendPictureRecord(std::string& out, const PictureRow& row, char decimalMark) {
    out += row.FileName;
    FieldWriter(out, decimalMark)
        .single(row.Left)
        .single(row.Top)
        .single(row.Width)
        .single(row.Height);
}

}  // namespace ladrix
