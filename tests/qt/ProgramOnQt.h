// A program that draws with the toolkit's canvas and fonts; the rest of its machine is the fake
// one.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "app/Startup.h"
#include "qt/QtCanvas.h"
#include "qt/QtFonts.h"
#include "qt/Theme.h"
#include "support/FakePlatform.h"

namespace ladrix::test {

// The fixture of windows under test. A window must go before the program: members of a derived
// fixture do.
class ProgramOnQt : public testing::Test {
  protected:
    // A fresh program on the machine as it stands, started.
    void startAnew() {
        theme::apply(*qApp);
        machine.platform.picLX = &canvas;
        machine.platform.fonts = &fonts;
        program = std::make_unique<Program>(machine.platform);
        canvas.showPageOf(program->editor);
        ASSERT_TRUE(startProgram(*program));
    }

    FakePlatform machine;
    QtFonts fonts;
    QtCanvas canvas;
    std::unique_ptr<Program> program;
};

}  // namespace ladrix::test
