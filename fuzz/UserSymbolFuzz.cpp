// Any bytes as a user symbol's script; the first one chooses the locale and whether the symbol is
// placed, shown in a preview of the palette or in the library manager's.
#include <cstdint>

#include "CheckedDrawing.h"
#include "usersymbols/Script.h"

namespace {

using namespace ladrix;

class UnseenCanvas final : public Canvas {
  public:
    void Line(Single, Single, Single, Single, Long, LineForm) override {}
    void Circle(Single, Single, Single, Long, Single) override {}
    void Arc(Single, Single, Single, Long, double, double, Single) override {}
    void Text(Single, Single, const FontSpec& font, std::string_view, Long) override {
        fuzz::require(font.size >= 1 && font.size <= 400);
    }
    void PaintPicture(const Picture&, Single, Single, Single, Single) override {}
    void Cls() override {}
    void SetScale(Single, Single, Single) override {}
    void repaint(const Extent&, const std::function<void()>&) override {}
    std::string Image(Single, Single, const std::function<void()>&) override { return {}; }
    std::string_view Name() const override { return "picLX"; }
};

class Session {
  public:
    Session() {
        machine_.platform.picLX = &canvas_;
        symbols_.UserSymbolScript.resize(1);
        symbols_.UserSymbolCount = 1;
    }

    void run(const fuzz::Input& input) {
        machine_.begin(input);
        ClearTables(editor_.drawing);
        SymbolPlacement placement;
        placement.obj = &canvas_;
        placement.X = placement.Y = 1;
        placement.MyScaleX = 2;
        if (input.chosen(1)) {
            place(placement, input.text);
        } else {
            preview(placement, input);
            fuzz::require(editor_.drawing.devices.DeviceCount == 0);
            fuzz::require(editor_.drawing.labels.LabelCount == 0);
        }
    }

  private:
    void place(SymbolPlacement& placement, const std::string& script) {
        Drawing& drawing = editor_.drawing;
        insert(placement, script);
        fuzz::checkDevices(drawing);
        fuzz::checkLabels(drawing);
        fuzz::checkDeviceRewriting(drawing, machine_.platform);
        fuzz::checkLabelRewriting(drawing, machine_.platform);
    }

    void preview(SymbolPlacement& placement, const fuzz::Input& input) {
        if (input.chosen(2)) return PreviewUserSymbol(editor_, placement, input.text);
        editor_.drawing.DrawingPreview = true;
        insert(placement, input.text);
        editor_.drawing.DrawingPreview = false;
    }

    void insert(SymbolPlacement& placement, const std::string& script) {
        symbols_.UserSymbolScript[0] = script;
        InsertUserSymbol(symbols_, editor_, placement, 0);
    }

    fuzz::RefusingFiles files_;
    UnseenCanvas canvas_;
    fuzz::Machine machine_{files_};
    Editor editor_{machine_.platform};
    UserSymbols symbols_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Session session;
    session.run(fuzz::Input(data, size));
    return 0;
}
