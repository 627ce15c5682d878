// The machine of a command-line tool: a page that nobody sees, Arial's widths, and boxes that go to
// standard error. Any box or report means that the tool has failed.
#pragma once

#include <array>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"

namespace ladrix::tools {

class UnseenCanvas final : public Canvas {
  public:
    void Line(Single, Single, Single, Single, Long, LineForm) override {}
    void Circle(Single, Single, Single, Long, Single) override {}
    void Arc(Single, Single, Single, Long, double, double, Single) override {}
    void Text(Single, Single, const FontSpec&, std::string_view, Long) override {}
    void PaintPicture(const Picture&, Single, Single, Single, Single) override {}
    void Cls() override {}
    void SetScale(Single, Single, Single) override {}
    void repaint(const Extent&, const std::function<void()>&) override {}
    std::string Image(Single, Single, const std::function<void()>&) override { return {}; }
    std::string_view Name() const override { return "unseen"; }
};

// Advance widths of Arial from space to tilde, thousandths of the size: the same on every machine,
// with or without the font.
class ArialWidths final : public Fonts {
  public:
    std::vector<std::string> families() override { return {"Arial"}; }

    Single textWidth(const FontSpec& font, std::string_view text) override {
        int sum = 0;
        for (const char c : text)
            sum += widthOf(c);
        return static_cast<Single>(sum) * (font.bold ? BoldFactor : 1) * font.size / 72000;
    }
    Single textHeight(const FontSpec& font) override { return LineHeight * font.size / 72; }

  private:
    static constexpr Single LineHeight = 1.117f;
    static constexpr Single BoldFactor = 1.07f;
    // clang-format off
    static constexpr std::array<short, 95> Widths = {
        278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278,
        556, 556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556,
        1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,
        667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556,
        333, 556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,
        556, 556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584};
    // clang-format on

    static int widthOf(char c) {
        const auto i = static_cast<std::size_t>(static_cast<unsigned char>(c)) - ' ';
        return i < Widths.size() ? Widths.at(i) : 556;
    }
};

class BoxesOnStandardError final : public Dialogs {
  public:
    bool shown = false;

    Answer message(std::string_view text, std::string_view title, Buttons) override {
        shown = true;
        std::cerr << title << ": " << text << '\n';
        return Answer::Cancel;
    }
    std::optional<std::string> input(std::string_view prompt, std::string_view title,
                                     std::string_view) override {
        message(prompt, title, Buttons::Ok);
        return std::nullopt;
    }
    void show(Form) override { shown = true; }
    void open(Form) override { shown = true; }
    void popUp(std::string_view) override { shown = true; }
};

// Owns the parts that `platform` points to, and therefore stays put.
struct ToolMachine {
    UnseenCanvas canvas;
    ArialWidths fonts;
    BoxesOnStandardError boxes;
    Platform platform;

    ToolMachine() {
        platform.picLX = &canvas;
        platform.fonts = &fonts;
        platform.dialogs = &boxes;
        platform.ReportError = [this](std::string_view description, const Failure& failure) {
            boxes.message(failure.text, description, Buttons::Ok);
        };
    }
    ToolMachine(const ToolMachine&) = delete;
    ToolMachine& operator=(const ToolMachine&) = delete;
};

}  // namespace ladrix::tools
