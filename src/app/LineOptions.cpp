#include "app/LineOptions.h"

#include "app/Preferences.h"
#include "canvas/tools/LineTool.h"
#include "platform/Numbers.h"

namespace ladrix {

void mnuOptDashedLineConstant_Click(Program& program) {
    const Platform& platform = program.platform;
    const char mark = platform.locale.decimalMark;
    Single& spacing = program.editor.DashSpacing;
    const auto typed =
        platform.dialogs->input("Insert new dash spacing in the box provided.",
                                "Changing Dashed Line Spacing", singleText(spacing, mark));
    if (!typed || typed->empty()) return;
    const auto wanted = typedNumber(*typed);
    if (!wanted) return platform.tell("Expected a numeric value.");
    if (!(*wanted >= LeastDashSpacing))
        return platform.tell("The dash spacing must be at least " +
                             singleText(LeastDashSpacing, mark) + " inches.");
    spacing = *wanted;
    StoreSetting(program, Setting::DashSpacing, singleText(spacing, mark));
}

}  // namespace ladrix
