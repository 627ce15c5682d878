#include "usersymbols/Script.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <span>
#include <utility>

#include "canvas/state/Editor.h"
#include "canvas/view/Painting.h"
#include "document/Records.h"
#include "platform/Numbers.h"
#include "symbols/FreeShapes.h"

namespace ladrix {

namespace {

constexpr Single DotRadius = 0.025f;                   // inches, whatever the scale
constexpr Single SmallestText = 1, LargestText = 400;  // points

// What a field of a line becomes; the last field of a line always lands in its keyword's last slot.
enum class Slot {
    X,
    Y,
    X2,
    Y2,
    Radius,
    Start,
    End,
    Caption,
    Color,
    Font,
    Size,
    Bold,
    Italic,
    None
};

struct Form {
    std::string_view keyword;
    ScriptKeyword kind;
    std::span<const Slot> slots;
};

constexpr Slot Corners[] = {Slot::X, Slot::Y, Slot::X2, Slot::Y2};
constexpr Slot Round[] = {Slot::X, Slot::Y, Slot::Radius, Slot::None};
constexpr Slot Point[] = {Slot::X, Slot::Y, Slot::None};
constexpr Slot Sweep[] = {Slot::X, Slot::Y, Slot::Radius, Slot::Start, Slot::End};
constexpr Slot Half[] = {Slot::X, Slot::Y, Slot::Radius, Slot::None, Slot::None};
constexpr Slot Caption[] = {Slot::Caption, Slot::X,    Slot::Y,    Slot::Color,
                            Slot::Font,    Slot::Size, Slot::Bold, Slot::Italic};

constexpr Form Forms[] = {
    {"Line", ScriptKeyword::Line, Corners},
    {"Square", ScriptKeyword::Square, Corners},
    {"Circle", ScriptKeyword::Circle, Round},
    {"SolidCircle", ScriptKeyword::SolidCircle, Round},
    {"Dot", ScriptKeyword::Dot, Point},
    {"Arc", ScriptKeyword::Arc, Sweep},
    {"SemiCircle", ScriptKeyword::SemiCircle, Half},
    {"Text", ScriptKeyword::Text, Caption},
};

// A field that will not convert leaves its slot at the empty value.
template <class Value, class Convert>
void convert(Value& value, std::string_view field, const Convert& conversion) {
    try {
        value = conversion(field);
    } catch (const Failure&) {
        value = {};
    }
}

void fill(ScriptLine& line, Slot slot, std::string_view field) {
    switch (slot) {
        case Slot::X:
            return convert(line.x, field, toSingle);
        case Slot::Y:
            return convert(line.y, field, toSingle);
        case Slot::X2:
            return convert(line.x2, field, toSingle);
        case Slot::Y2:
            return convert(line.y2, field, toSingle);
        case Slot::Radius:
            return convert(line.radius, field, toSingle);
        case Slot::Start:
            return convert(line.start, field, toSingle);
        case Slot::End:
            return convert(line.end, field, toSingle);
        case Slot::Caption:
            line.text.text = field;
            return;
        case Slot::Color:
            return convert(line.text.color, field, toLong);
        case Slot::Font:
            line.text.fontName = field;
            return;
        case Slot::Size:
            return convert(line.text.fontSize, field, toSingle);
        case Slot::Bold:
            return convert(line.text.bold, field, toBoolean);
        case Slot::Italic:
            return convert(line.text.italic, field, toBoolean);
        case Slot::None:
            return;
    }
}

void fillFields(ScriptLine& line, const Form& form, std::string_view rest,
                std::string_view separator) {
    for (std::size_t position = 0;; ++position) {
        const std::size_t end = rest.find(separator);
        if (end == std::string_view::npos) return fill(line, form.slots.back(), rest);
        if (position < form.slots.size()) fill(line, form.slots[position], rest.substr(0, end));
        rest.remove_prefix(end + separator.size());
    }
}

std::string_view separatorOf(std::string_view line, ScriptGenerations generations) {
    static constexpr std::array<std::string_view, 3> Separators = {"\xFF", "=FF", ":"};
    if (generations == ScriptGenerations::OldestAlone)
        return line.find(Separators.back()) == std::string_view::npos ? "" : Separators.back();
    for (const std::string_view separator : Separators)
        if (line.find(separator) != std::string_view::npos) return separator;
    return {};
}

std::optional<ScriptLine> parsedLine(std::string_view line, std::string_view separator) {
    const std::size_t end = line.find(separator);
    const std::string_view keyword = line.substr(0, end);
    for (const Form& form : Forms) {
        if (form.keyword != keyword) continue;
        ScriptLine parsed;
        parsed.keyword = form.kind;
        fillFields(parsed, form, line.substr(end + separator.size()), separator);
        return parsed;
    }
    return std::nullopt;
}

// No text of a record holds a character that would break it.
void makeRecordable(std::string& text) {
    for (char& c : text)
        if (static_cast<unsigned char>(c) < 32 || c == FieldSeparator) c = ' ';
}

// Places the parsed lines. Works on the editor's parameter block, which is put back after.
class Placer {
  public:
    Placer(Editor& target, const SymbolPlacement& where)
        : editor_(target),
          drawing_(target.drawing),
          block_(target.symbols.block),
          former_(target.symbols.block),
          formerNoSnapshot_(target.drawing.NoSnapshot),
          at_(where),
          recording_(!drawing_.DrawingPreview && !drawing_.NoRecord &&
                     where.obj != target.symbols.printer) {
        if (at_.MyColor == 0) at_.MyColor = editor_.CurrentColor;
        drawing_.NoSnapshot = true;
        block_.obj = at_.obj;
        block_.CurColor = at_.MyColor;
        block_.CurWidthTag.clear();
        block_.CurAspect = 1;
        block_.CurDirection = 0;
    }
    ~Placer() {
        block_ = former_;
        drawing_.NoSnapshot = formerNoSnapshot_;
    }
    Placer(const Placer&) = delete;
    Placer& operator=(const Placer&) = delete;

    // A step that fails is skipped. False if the table is full: the rest would only say so again.
    bool place(const ScriptLine& line) {
        try {
            return placeLine(line);
        } catch (const Failure&) {
            return true;
        }
    }

  private:
    Single x(Single value) const { return at_.X + value * at_.MyScaleX; }
    Single y(Single value) const { return at_.Y + value * at_.MyScaleY; }

    bool placeLine(const ScriptLine& line) {
        switch (line.keyword) {
            case ScriptKeyword::Line:
                return placeStraight(line, "InsertSavedLine", LineForm::Plain);
            case ScriptKeyword::Square:
                return placeStraight(line, "InsertSavedSquare", LineForm::Box);
            case ScriptKeyword::Circle:
                return placeRound(line, FreeShape::Circle, line.radius * at_.MyScaleX);
            case ScriptKeyword::SolidCircle:
                return placeRound(line, FreeShape::SolidCircle, line.radius * at_.MyScaleX);
            case ScriptKeyword::Dot:
                return placeRound(line, FreeShape::SolidCircle, DotRadius);
            case ScriptKeyword::Arc:
                return placeRound(line, FreeShape::Arc, line.radius * at_.MyScaleX);
            case ScriptKeyword::SemiCircle:
                return placeSemiCircle(line);
            case ScriptKeyword::Text:
                return placeText(line);
        }
        return true;
    }

    // Straight onto the surface: the routines of the line tool would leave a ghost on the canvas.
    bool placeStraight(const ScriptLine& line, std::string_view name, LineForm form) {
        Device device;
        device.name = name;
        device.x = x(line.x);
        device.y = y(line.y);
        device.x2 = x(line.x2);
        device.y2 = y(line.y2);
        device.color = at_.MyColor;
        requireFinite({device.x, device.y, device.x2, device.y2});
        Surface& surface = *at_.obj;
        const bool setsWidth = !editor_.symbols.ThickDevices && at_.obj != editor_.symbols.printer;
        if (setsWidth) surface.DrawWidth = editor_.symbols.DrawWidthCurrent;
        surface.DrawStyle = 0;
        surface.Line(device.x, device.y, device.x2, device.y2, device.color, form);
        return record(device);
    }

    bool placeRound(const ScriptLine& line, FreeShape shape, Single radius) {
        block_.CurX = x(line.x);
        block_.CurY = y(line.y);
        block_.CurRadius = block_.CurRadius2 = radius;
        block_.CurStartAngle = line.start;
        block_.CurEndAngle = line.end;
        return drawAndRecord(shape);
    }

    // The old form does not scale.
    bool placeSemiCircle(const ScriptLine& line) {
        block_.CurX = at_.X + line.x;
        block_.CurY = at_.Y + line.y;
        block_.CurRadius2 = line.radius;
        return drawAndRecord(FreeShape::SemiCircle);
    }

    bool drawAndRecord(FreeShape shape) {
        block_.CurAspect = 1;
        requireFinite({block_.CurX, block_.CurY, block_.CurRadius2});
        drawFreeShape(shape, editor_.symbols, editor_.platform);
        Device device = recordOfFreeShape(shape, block_);
        return record(device);
    }

    bool placeText(const ScriptLine& line) {
        Label label = line.text;
        label.x = x(line.x);
        label.y = y(line.y);
        label.fontSize = std::clamp(label.fontSize * at_.MyScaleX, SmallestText, LargestText);
        requireFinite({label.x, label.y});
        makeRecordable(label.text);
        makeRecordable(label.fontName);
        if (!recording_) return drawText(label);
        const Short before = drawing_.labels.LabelCount;
        RecordLabel(drawing_, editor_.platform, label);
        if (drawing_.labels.LabelCount == before) return false;
        placeLastLabel(editor_);
        return true;
    }

    bool drawText(const Label& label) {
        if (auto* const page = dynamic_cast<Page*>(at_.obj))
            page->Text(label.x, label.y, {label.fontName, label.fontSize, label.bold, label.italic},
                       label.text, label.color);
        return true;
    }

    bool record(Device& device) {
        if (!recording_) return true;
        const Short before = drawing_.devices.DeviceCount;
        RecordDevice(drawing_, editor_.platform, device);
        return drawing_.devices.DeviceCount > before;
    }

    static void requireFinite(std::initializer_list<Single> values) {
        for (const Single value : values)
            if (!std::isfinite(value)) throw Failure{failure::Overflow, "Overflow"};
    }

    Editor& editor_;
    Drawing& drawing_;
    DeviceBlock& block_;
    const DeviceBlock former_;
    const bool formerNoSnapshot_;
    SymbolPlacement at_;
    const bool recording_;
};

void resolveScale(const Editor& editor, SymbolPlacement& placement) {
    if (placement.MyScaleX == 0) placement.MyScaleX = editor.SymbolScaleX;
    if (placement.MyScaleY == 0) placement.MyScaleY = editor.SymbolScaleY;
}

void placeAll(Editor& editor, const SymbolPlacement& placement,
              const std::vector<ScriptLine>& lines) {
    Placer placer(editor, placement);
    for (const ScriptLine& line : lines)
        if (!placer.place(line)) return;
}

// nullopt also for a script beyond the limits, which is reported unless a preview is drawn.
std::optional<std::vector<ScriptLine>> linesToPlace(const Editor& editor, std::string_view script) {
    try {
        return parseScript(script, ScriptGenerations::All);
    } catch (const Failure& failure) {
        if (!editor.drawing.DrawingPreview)
            editor.platform.ReportError("Insert User Symbol", failure);
        return std::nullopt;
    }
}

}  // namespace

std::optional<std::vector<ScriptLine>> parseScript(std::string_view script,
                                                   ScriptGenerations generations) {
    requireScriptWithinLimits(script);
    std::vector<ScriptLine> lines;
    for (std::size_t end; (end = script.find(LineEnd)) != std::string_view::npos;
         script.remove_prefix(end + LineEnd.size())) {
        const std::string_view line = script.substr(0, end);
        const std::string_view separator = separatorOf(line, generations);
        if (separator.empty()) {
            if (generations == ScriptGenerations::OldestAlone) continue;
            return std::nullopt;
        }
        if (const auto parsed = parsedLine(line, separator)) lines.push_back(*parsed);
    }
    return lines;
}

void requireScriptWithinLimits(std::string_view script) {
    if (script.size() > LargestScript)
        throw Failure{failure::Overflow, "The script of the symbol is larger than 1 MiB."};
    const auto ends = static_cast<std::size_t>(std::count(script.begin(), script.end(), '\n'));
    if (ends > MostScriptLines)
        throw Failure{failure::Overflow, "The script of the symbol has more than 32,767 lines."};
}

void InsertUserSymbol(const UserSymbols& symbols, Editor& editor, SymbolPlacement& placement,
                      Short index) {
    resolveScale(editor, placement);
    if (index < 0 || index >= symbols.UserSymbolCount) return;
    const auto lines =
        linesToPlace(editor, symbols.UserSymbolScript[static_cast<std::size_t>(index)]);
    if (!lines) return;
    placeAll(editor, placement, *lines);
    const Drawing& drawing = editor.drawing;
    if (!drawing.DrawingPreview && !drawing.NoRecord && drawing.TakeUndoSnapshot)
        drawing.TakeUndoSnapshot();
}

void PreviewUserSymbol(Editor& editor, SymbolPlacement& placement, std::string_view script) {
    resolveScale(editor, placement);
    const bool formerly = std::exchange(editor.drawing.DrawingPreview, true);
    try {
        if (const auto lines = parseScript(script, ScriptGenerations::OldestAlone))
            placeAll(editor, placement, *lines);
    } catch (const Failure&) {
        // A script beyond the limits shows as an empty preview.
    }
    editor.drawing.DrawingPreview = formerly;
}

void drawToolsUserSymbol(const UserSymbols& symbols, Editor& editor, const DeviceBlock& block) {
    SymbolPlacement placement{block.obj, block.CurX, block.CurY, block.CurColor};
    InsertUserSymbol(
        symbols, editor, placement,
        static_cast<Short>(editor.gesture.CurrentTool - (editor.LastBuiltInButton + 1)));
}

}  // namespace ladrix
