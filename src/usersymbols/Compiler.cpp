#include "usersymbols/Compiler.h"

#include <algorithm>
#include <cmath>

#include "document/Records.h"
#include "platform/Numbers.h"
#include "usersymbols/Libraries.h"

namespace ladrix {

namespace {

// Four decimals, halves to even: the resolution of a user symbol.
Single fixed(double value) {
    return static_cast<Single>(std::nearbyint(value * 10000) / 10000);
}

Device collected(Device device) {
    for (Single* const value :
         {&device.x, &device.y, &device.x2, &device.y2, &device.radius, &device.aspect})
        *value = fixed(static_cast<double>(*value));
    return device;
}

// The box of one item; nullopt for an item that is no primitive.
std::optional<Extent> itemBox(const Device& item) {
    const Single x = item.x, y = item.y, r = item.radius;
    Extent box;
    const auto add = [&](Single left, Single right, Single top, Single bottom) {
        box.add(left, top);
        box.add(right, bottom);
        return box;
    };
    if (item.name == "InsertCircle") return add(x, x + 2 * r, y - r, y + r);
    if (item.name == "InsertConnectionPoint" || item.name == "InsertSolidCircle")
        return add(x, x, y, y);
    if (item.name == "InsertSavedLine" || item.name == "InsertSavedSquare")
        return add(x, item.x2, y, item.y2);
    const bool isArc = item.name == "InsertArc";
    if (!isArc && item.name != "InsertSemiCircle") return std::nullopt;
    switch (item.direction) {
        case 0:
            return isArc ? std::optional(add(x - r, x + r, y - r, y + r)) : std::nullopt;
        case 1:
            return add(x, x + r, y - r, y + r);
        case 2:
            return add(x - r, x, y - r, y + r);
        case 3:
            return add(x - r, x + r, y, y + r);
        case 4:
            return add(x - r, x + r, y - r, y);
        default:
            return std::nullopt;
    }
}

void emptyTables(SymbolCompiler& compiler) {
    compiler.items.clear();
    compiler.labels.clear();
    compiler.SymbolLeft = 8.5f;
    compiler.SymbolTop = 11;
    compiler.SymbolRight = compiler.SymbolBottom = 0;
    compiler.SymbolWidth = compiler.SymbolHeight = 0;
}

// The first box sets the corner at the upper left, so that an item beyond a letter page counts too.
class RunningBox {
  public:
    explicit RunningBox(SymbolCompiler& compiler) : compiler_(compiler) {}

    void widen(const Extent& box) {
        compiler_.SymbolLeft = empty_ ? box.left : std::min(compiler_.SymbolLeft, box.left);
        compiler_.SymbolTop = empty_ ? box.top : std::min(compiler_.SymbolTop, box.top);
        compiler_.SymbolRight = std::max(compiler_.SymbolRight, box.right);
        compiler_.SymbolBottom = std::max(compiler_.SymbolBottom, box.bottom);
        empty_ = false;
    }
    void measure() {
        compiler_.SymbolWidth = compiler_.SymbolRight - compiler_.SymbolLeft;
        compiler_.SymbolHeight = compiler_.SymbolBottom - compiler_.SymbolTop;
    }

  private:
    SymbolCompiler& compiler_;
    bool empty_ = true;
};

// A label without a text is nothing in a symbol.
void collectLabels(SymbolCompiler& compiler, const LabelTable& labels) {
    for (Short i = 0; i < labels.LabelCount; ++i) {
        const auto row = static_cast<std::size_t>(i);
        if (labels.LabelSelected[row] != 0 && !labels.LabelText[row].empty())
            compiler.labels.append(labels.row(i));
    }
}

FontSpec fontOf(const Label& label) {
    return {label.fontName, label.fontSize, label.bold, label.italic};
}

// --- Lines of text

// Builds a line from texts and numbers in order.
class LineText {
  public:
    explicit LineText(char decimalMark) : mark_(decimalMark) {}

    LineText& operator<<(std::string_view text) {
        text_ += text;
        return *this;
    }
    LineText& operator<<(Single value) {
        appendSingle(text_, value, mark_);
        return *this;
    }
    template <class... Fields>
    std::string fields(std::string_view keyword, const Fields&... rest) {
        *this << keyword;
        ((*this << std::string_view(&FieldSeparator, 1) << rest), ...);
        return std::move(text_);
    }
    std::string text() { return std::move(text_); }

  private:
    std::string text_;
    char mark_;
};

struct RelativeItem {
    const Device& item;
    Single x, y, x2, y2;
    std::string radius;
    char mark;

    template <class... Fields>
    std::string script(std::string_view keyword, const Fields&... rest) const {
        return LineText(mark).fields(keyword, rest...);
    }
    // "(X + (MyScaleX * 1), Y + (MyScaleY * 2))"
    void scaledPoint(LineText& line, Single px, Single py) const {
        line << "(X + (MyScaleX * " << px << "), Y + (MyScaleY * " << py << "))";
    }
    std::string scaledCircle(std::string_view tail) const {
        LineText line(mark);
        line << "obj.Circle ";
        scaledPoint(line, x, y);
        line << ", (MyScaleX * " << radius << "), MyColor" << tail;
        return line.text();
    }
    std::string scaledBox(Single px, Single py, std::string_view tail) const {
        LineText line(mark);
        line << "obj.Line ";
        scaledPoint(line, px, py);
        line << " - ";
        scaledPoint(line, x2, y2);
        line << ", MyColor" << tail;
        return line.text();
    }
    std::string plainCircle(std::string_view angles, std::string_view afterY = {}) const {
        LineText line(mark);
        line << "obj.Circle (X + " << x << ", Y + " << y;
        if (!afterY.empty()) line << afterY << radius;
        line << "), " << radius << ", MyColor, " << angles;
        return line.text();
    }
};

struct ItemLines {
    std::string script, exported;
};

// The centre of a directed arc lies a radius from its point, in the direction in which it opens.
void moveToCentre(RelativeItem& at) {
    const auto moved = [&](Single value, int sign) {
        return static_cast<Single>(static_cast<double>(value) +
                                   sign * static_cast<double>(at.item.radius));
    };
    if (at.item.direction == 1) at.x = moved(at.x, 1);
    if (at.item.direction == 2) at.x = moved(at.x, -1);
    if (at.item.direction == 3) at.y = moved(at.y, 1);
    if (at.item.direction == 4) at.y = moved(at.y, -1);
}

ItemLines semiCircleLines(RelativeItem at) {
    struct Half {
        std::string_view start, end, exported;
    };
    static constexpr Half Halves[] = {{"1.5708", "4.712388", "Pi / 2, (Pi * 3) / 2"},
                                      {"4.712388", "1.5708", "(Pi * 3) / 2, Pi / 2"},
                                      {"6.283185", "3.1415927", "Pi * 2, Pi"},
                                      {"3.1415927", "6.283185", "Pi, Pi * 2"}};
    const Short direction = at.item.direction;
    if (direction < 1 || direction > 4) return {};
    const Half& half = Halves[direction - 1];
    ItemLines lines;
    lines.exported = at.plainCircle(half.exported, direction == 4 ? "- " : "");
    moveToCentre(at);
    lines.script = at.script("Arc", at.x, at.y, at.radius, half.start, half.end);
    return lines;
}

ItemLines freeArcLines(const RelativeItem& at) {
    LineText line(at.mark);
    line << "obj.Circle ";
    at.scaledPoint(line, at.x, at.y);
    line << ",  (MyScaleX * " << at.radius << "), MyColor, " << at.item.startAngle << ", "
         << at.item.endAngle;
    return {at.script("Arc", at.x, at.y, at.radius, at.item.startAngle, at.item.endAngle),
            line.text()};
}

ItemLines arcLines(RelativeItem at) {
    if (at.item.direction == 0) return freeArcLines(at);
    static constexpr std::string_view Ends[][2] = {{"(Pi * 3) / 4", "(Pi * 5) / 4"},
                                                   {"(Pi * 7) / 4", "Pi / 4"},
                                                   {"Pi / 4", "(Pi * 3) / 4"},
                                                   {"(Pi * 5) / 4", "(Pi * 7) / 4"}};
    if (at.item.direction < 1 || at.item.direction > 4) return {};
    const auto& [start, end] = Ends[at.item.direction - 1];
    moveToCentre(at);
    ItemLines lines;
    lines.script = at.item.direction == 1
                       ? at.script("Arc", at.x, at.y, at.radius, start, end, "1")
                       : at.script("Arc", at.x, at.y, at.radius, "0", start, end, "1");
    lines.exported = at.plainCircle(std::string(start) + ", " + std::string(end));
    return lines;
}

ItemLines dotLines(const RelativeItem& at) {
    LineText line(at.mark);
    line << "obj.Circle (X + (MyScaleX * " << at.x << ", Y + (MyScaleY * " << at.y
         << ")), 0.025, MyColor";
    return {at.script("Dot", at.x, at.y, "0.025"), line.text()};
}

ItemLines linesOf(RelativeItem at) {
    const std::string& name = at.item.name;
    if (name == "InsertConnectionPoint") return dotLines(at);
    if (name == "InsertSavedLine")
        return {at.script("Line", at.x, at.y, at.x2, at.y2), at.scaledBox(at.x, at.y, "")};
    if (name == "InsertSavedSquare")
        return {at.script("Square", at.x, at.y, at.x2, at.y2), at.scaledBox(at.x, at.y, ", B")};
    if (name == "InsertSolidCircle")
        return {at.script("SolidCircle", at.x, at.y, at.radius, "1"), at.scaledCircle(", 1")};
    if (name == "InsertCircle") {
        ItemLines lines{at.script("Circle", at.x, at.y, at.radius, "1"), ""};
        at.x = static_cast<Single>(static_cast<double>(at.x) + static_cast<double>(at.item.radius));
        lines.exported = at.scaledCircle("");
        return lines;
    }
    if (name == "InsertSemiCircle") return semiCircleLines(at);
    if (name == "InsertArc") return arcLines(at);
    return {};
}

RelativeItem relativeItem(const SymbolCompiler& compiler, const Device& item, char mark) {
    const auto relative = [](Single value, Single insertion) {
        return fixed(static_cast<double>(value) - static_cast<double>(insertion));
    };
    return {item,
            relative(item.x, compiler.InsertionX),
            relative(item.y, compiler.InsertionY),
            relative(item.x2, compiler.InsertionX),
            relative(item.y2, compiler.InsertionY),
            coordinateText(item.radius, mark),
            mark};
}

std::string textLine(const SymbolCompiler& compiler, const Label& label, char mark) {
    const auto truth = [](bool value) { return std::string_view(value ? "True" : "False"); };
    return LineText(mark).fields(
        "Text", std::string_view(label.text), label.x - compiler.InsertionX,
        label.y - compiler.InsertionY, std::string_view(longText(label.color)),
        std::string_view(label.fontName), label.fontSize, truth(label.bold), truth(label.italic));
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text.append(line).append(LineEnd);
    return text;
}

void putOnClipboard(const SymbolCompiler& compiler, Clipboard& clipboard) {
    clipboard.Clear();
    clipboard.SetText(compiler.SymbolExportText);
}

// --- The passes

void firstPass(UserSymbols& symbols, Editor& editor) {
    makeIconPictures(symbols, editor.platform);
    editor.form.lblMessage.Caption = longText(editor.SelectedDeviceCount) +
                                     " devices have been selected for Inclusion as a User Symbol.";
    editor.gesture.SymbolPointPending = true;
    symbols.frmButtonColor.Visible = true;
    editor.platform.dialogs->show(Form::frmButtonColor);
    editor.gesture.SymbolPointFound = true;
}

// The flags are off before the form is up, so that nothing of the canvas waits behind it.
void secondPass(UserSymbols& symbols, Editor& editor, Short collectedCount) {
    editor.gesture.SymbolPointPending = editor.gesture.SymbolPointFound = false;
    if (collectedCount == 0) {
        editor.form.lblMessage.Caption =
            "A symbol of labels alone takes its insertion point from a click on one of them. Hit "
            "ESC and start again.";
        return;
    }
    SymbolCompiler& compiler = symbols.compiler;
    compileScript(compiler, editor.platform.locale.decimalMark);
    putOnClipboard(compiler, *editor.platform.clipboard);
    if (editor.gesture.SavingUserSymbol) drawSymbolIcons(symbols);
    symbols.frmUS.txtSymbolName.Text.clear();
    symbols.frmUS.Visible = true;
    editor.platform.dialogs->show(Form::frmUS);
}

}  // namespace

void mnuEditSaveUserSymbol_Click(UserSymbols& symbols, Editor& editor) {
    if (editor.SelectedDeviceCount == 0 && editor.SelectedLabelCount == 0)
        return editor.platform.tell("Nothing has been selected.");
    editor.gesture.SavingUserSymbol = true;
    editor.gesture.SymbolPointFound = false;
    CompileUserSymbol(symbols, editor);
}

void takeInsertionPoint(UserSymbols& symbols, Editor& editor, Single x, Single y, Short label) {
    SymbolCompiler& compiler = symbols.compiler;
    editor.gesture.SymbolPointFound = true;
    editor.gesture.SymbolPointPending = false;
    compiler.InsertionX = x;
    compiler.InsertionY = y;
    if (label >= 0) {
        CollectSelectedLabels(compiler, editor.drawing, *editor.platform.fonts);
        return CompileLabelSymbol(symbols, editor);
    }
    CollectSelectedItems(compiler, editor.drawing);
    CompileUserSymbol(symbols, editor);
}

void CollectSelectedItems(SymbolCompiler& compiler, const Drawing& drawing) {
    emptyTables(compiler);
    RunningBox box(compiler);
    const DeviceTable& devices = drawing.devices;
    for (Short i = 0; i < devices.DeviceCount; ++i) {
        if (devices.DeviceSelected[static_cast<std::size_t>(i)] == 0) continue;
        const Device item = collected(devices.row(i));
        compiler.items.append(item);
        if (const auto itsBox = itemBox(item)) box.widen(*itsBox);
        box.measure();
    }
    collectLabels(compiler, drawing.labels);
}

void CollectSelectedLabels(SymbolCompiler& compiler, const Drawing& drawing, Fonts& fonts) {
    emptyTables(compiler);
    collectLabels(compiler, drawing.labels);
    RunningBox box(compiler);
    for (Short i = 0; i < compiler.labels.LabelCount; ++i) {
        const Label label = compiler.labels.row(i);
        Extent extent;
        extent.add(label.x, label.y);
        extent.add(label.x + fonts.textWidth(fontOf(label), label.text),
                   label.y + fonts.textHeight(fontOf(label)));
        box.widen(extent);
        box.measure();
    }
}

void CompileUserSymbol(UserSymbols& symbols, Editor& editor) {
    if (!editor.gesture.SymbolPointFound) return firstPass(symbols, editor);
    secondPass(symbols, editor, symbols.compiler.items.DeviceCount);
}

void CompileLabelSymbol(UserSymbols& symbols, Editor& editor) {
    if (!editor.gesture.SymbolPointFound) return firstPass(symbols, editor);
    secondPass(symbols, editor, symbols.compiler.labels.LabelCount);
}

void compileScript(SymbolCompiler& compiler, char decimalMark) {
    compiler.SymbolScriptLines.clear();
    std::vector<std::string> exported;
    for (Short i = 0; i < compiler.items.DeviceCount; ++i) {
        const Device item = compiler.items.row(i);
        ItemLines lines;
        try {
            lines = linesOf(relativeItem(compiler, item, decimalMark));
        } catch (const Failure&) {
            lines = {};
        }
        compiler.SymbolScriptLines.push_back(std::move(lines.script));
        exported.push_back(std::move(lines.exported));
    }
    for (Short i = 0; i < compiler.labels.LabelCount; ++i) {
        try {
            compiler.SymbolScriptLines.push_back(
                textLine(compiler, compiler.labels.row(i), decimalMark));
        } catch (const Failure&) {
            continue;
        }
    }
    compiler.SymbolScriptText = joined(compiler.SymbolScriptLines);
    compiler.SymbolExportText = joined(exported);
}

void mnuAdminCreateSymbolExportFile_Click(UserSymbols& symbols, Editor& editor) {
    const Platform& platform = editor.platform;
    const auto answer = platform.dialogs->input("Please type the name for the symbol file.",
                                                "Creating New Symbol File", "Temp Symbols");
    if (!answer || answer->empty()) return;
    const std::string name = *answer + ".txt";
    if (!acceptedAsFileName(platform, name)) return;
    platform.attempt("Create Symbol Export File", [&] {
        if (FileExists(*platform.files, editor.AppFilePath, name))
            return platform.tell("A file with that name already exists. Choose a new name.");
        platform.files->replace(editor.AppFilePath + name, "");
        symbols.compiler.SymbolExportFile = editor.AppFilePath + name;
    });
}

void appendToExportFile(SymbolCompiler& compiler, Files& files, std::string_view name) {
    if (compiler.SymbolExportFile.empty()) return;
    files.append(compiler.SymbolExportFile,
                 "'" + std::string(name) + "\r\n" + compiler.SymbolExportText + "\r\n\r\n");
    compiler.SymbolExportText.clear();
}

}  // namespace ladrix
