// Undo and redo, told by the saved texts; and how the history keeps them.
#include "canvas/history/History.h"
#include "canvas/history/Undo.h"
#include "canvas/tools/LineWidth.h"

#include <malloc.h>

#include <random>

#include "Bench.h"
#include "canvas/file/DrawingCommands.h"
#include "canvas/gestures/CopyMove.h"
#include "canvas/gestures/Selection.h"
#include "canvas/labels/LabelCommands.h"
#include "canvas/labels/Labels.h"
#include "canvas/tools/Colors.h"
#include "canvas/tools/RadiusFields.h"
#include "canvas/view/Zoom.h"
#include "document/DrawingFile.h"
#include "document/Records.h"

namespace ladrix::test {
namespace {

struct UndoBench : Bench {
    UndoBench() {
        drawing.TakeUndoSnapshot = [this] { TakeUndoSnapshot(editor); };
        ClearHistory(editor);
    }
    void undo() { mnuEditUndo_Click(editor); }
    void redo() { mnuEditRedo_Click(editor); }
    std::string text() const {
        return drawing.DeviceString + "\n" + drawing.LabelString + "\n" + drawing.PictureString;
    }
    // The tables say what the texts say.
    std::string rebuilt() {
        RebuildDeviceString(drawing, machine.platform);
        RebuildLabelString(drawing, machine.platform);
        RebuildPictureString(drawing, machine.platform);
        return text();
    }
    void addPicture(const PictureRow& row) {
        Bench::addPicture(row);
        TakeUndoSnapshot(editor);
    }
    std::string lastBox() const { return boxes().back(); }
};

struct UndoTest : testing::Test, UndoBench {};

TEST_F(UndoTest, UndoStepsBackAndForthAndStopsAtTheEnds) {
    undo();
    EXPECT_EQ(lastBox(), "Nothing more can be undone.");
    EXPECT_EQ(editor.UndoPosition, 0);
    play("tool Ground; click 1 1; click 2 1; click 3 1; key 27 0");
    mnuEditSelectAll_Click(editor);
    drawing.DrawingChanged = false;
    undo();
    EXPECT_THAT(devices(), SizeIs(2));
    EXPECT_EQ(editor.SelectedCount, 0) << "the restored state has no selection";
    EXPECT_TRUE(drawing.DrawingChanged);
    EXPECT_EQ(canvas.persistent.size(), 2 * 4u) << "the canvas shows two grounds";
    undo();
    redo();
    EXPECT_EQ(devices().back(), "InsertGround|2|1|0||1|1|0|False");
    redo();
    redo();
    EXPECT_EQ(lastBox(), "Nothing more can be re-done.");
    EXPECT_THAT(devices(), SizeIs(3));

    undo();
    undo();
    play("tool Ground; click 7 7");
    redo();
    EXPECT_EQ(lastBox(), "Nothing more can be re-done.") << "a new action ends the redo";
    EXPECT_EQ(devices().back(), "InsertGround|7|7|0||1|1|0|False");
}

TEST_F(UndoTest, UndoRestoresAnEmptySectionAsEmpty) {
    play("tool Text; move 3 3");
    editor.gesture.TextBuffer = "///PICTURES///";  // a label may read like a marker
    play("click 3 3; key 27 0; tool Ground; click 1 1; key 27 0");
    undo();
    EXPECT_THAT(labels(), SizeIs(1));
    EXPECT_THAT(devices(), IsEmpty());
    undo();
    EXPECT_EQ(text(), "\n\n");
    EXPECT_THAT(editor.form.lbl, IsEmpty());
    redo();
    EXPECT_THAT(drawing.labels.LabelText, ElementsAre("///PICTURES///"));
}

// Such a device can come from a file alone.
TEST_F(UndoTest, UndoIsNotDeceivedByTextsThatReadLikeItsMarkers) {
    drawing.devices.append({.name = "x///LABELS///", .x = 1, .widthTag = "///LABELS///"});
    RebuildDeviceString(drawing, machine.platform);
    ClearHistory(editor);
    std::vector<std::string> states = {text()};
    for (const char* label : {"///LABELS///", "///PICTURES///", "///DEVICES///", "x///LABELS///",
                              "x///PICTURES///", "///LABELS//////PICTURES///"}) {
        RecordLabel(drawing, machine.platform, {.text = label, .fontName = "Arial", .fontSize = 8});
        states.push_back(text());
    }
    addPicture({1, 1, 2, 2, "a.png", "/far/a.png", false});
    states.push_back(text());
    for (std::size_t i = states.size() - 1; i-- > 0;) {
        undo();
        EXPECT_EQ(rebuilt(), states[i]) << i;
    }
    for (std::size_t i = 1; i < states.size(); ++i) {
        redo();
        EXPECT_EQ(rebuilt(), states[i]) << i;
    }
    EXPECT_TRUE(boxes().empty() && reports().empty());
}

TEST_F(UndoTest, UndoTakesADeviceWithItsLabelInOneStepAndAFinishedEditInTheNext) {
    drawing.AttachLabels = true;
    play("tool Relay/Timer Coil; click 2 3");
    editor.form.txtEdit.Text = "CR7";
    txtEdit_Change(editor);
    undo();
    EXPECT_EQ(drawing.labels.LabelText.at(0), "CR") << "the edit under way is finished first";
    EXPECT_FALSE(editor.form.picText.Visible);
    redo();
    EXPECT_EQ(drawing.labels.LabelText.at(0), "CR7");
    undo();
    undo();
    EXPECT_EQ(text(), "\n\n");
    EXPECT_EQ(editor.UndoPosition, 0);
}

TEST_F(UndoTest, UndoBringsPicturesBackWithTheirImagesWhereverTheyLay) {
    addPicture({1, 1, 2, 2, "a.png", "/far/a.png", false});
    addPicture({4, 1, 2, 2, "b.png", "/far/b.png", false});
    const auto images = editor.img;
    const std::string before = text();
    mnuEditSelectAll_Click(editor);
    DeleteSelection(editor);
    undo();
    EXPECT_EQ(rebuilt(), before);
    EXPECT_EQ(editor.img, images);
    EXPECT_EQ(drawing.PictureTable.at(1).FullPath, "/far/b.png");
    EXPECT_THAT(machine.images.loaded, IsEmpty()) << "from memory, not from disk";
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(UndoTest, UndoOfArrowKeysIsNotFollowedByTheStepThatAResetWouldTake) {
    play("tool Ground; click 1 1; key 27 0; move 1.01 1");
    picGrip_Click(editor);
    play("key 39 1");
    undo();
    EXPECT_EQ(devices().at(0), "InsertGround|1|1|0||1|1|0|False");
    play("key 27 0");
    redo();
    EXPECT_EQ(devices().at(0), "InsertGround|1.25|1|0||1|1|0|False");
}

TEST_F(UndoTest, UndoIsEmptiedByANewAndByAnOpenedDrawing) {
    play("tool Ground; click 1 1; click 2 1; key 27 0");
    NewDrawing(editor);
    EXPECT_EQ(editor.UndoTop, 0);
    undo();
    EXPECT_EQ(lastBox(), "Nothing more can be undone.");
    writeDocument("a.els", line(Lamp));
    open("a.els");
    play("tool Ground; click 2 1; key 27 0");
    undo();
    EXPECT_THAT(devices(), ElementsAre(Lamp));
}

// A person's commands in random order. Dashed lines are left out: their later dashes belong to the
// step that comes after them.
struct RandomCommands {
    UndoBench& bench;
    std::mt19937 random;

    unsigned below(unsigned limit) { return static_cast<unsigned>(random() % limit); }
    std::string point() {
        const auto coordinate = [&] { return std::to_string(0.25 * (1 + below(30))); };
        return coordinate() + " " + coordinate();
    }
    void pick() {
        bench.play("press 0.1 0.1; drag " + point() + "; release");
        bench.play("move " + point());
        if (bench.editor.form.pointer.picGrip.Visible) picGrip_Click(bench.editor);
    }
    void restyle() {
        pick();
        Editor& editor = bench.editor;
        if (below(2) == 0) mnuOptionLabelColor_Click(editor);
        editor.form.txtRadius.Text = "0." + std::to_string(1 + below(9));
        if (below(2) == 0) cmdCircle_Click(editor);
        if (below(2) == 0) cmdDrawWidth_Click(editor, static_cast<Short>(below(2)));
        if (below(2) == 0) lblColor_Click(editor, below(40));
        bench.play("key 27 0");
    }
    void run() {
        static constexpr const char* Tools[] = {
            "Line", "Square", "Small Circle", "Arc Left", "Lamp", "Relay/Timer Coil", "Text"};
        switch (below(7)) {
            case 0:
            case 1:
                bench.editor.gesture.TextBuffer = "text " + std::to_string(below(9));
                bench.play(std::string("tool ") + Tools[below(7)] + "; click " + point() +
                           "; click " + point() + "; key 27 0");
                break;
            case 2:
                pick();
                bench.play(below(2) == 0 ? "key 39 1; key 27 0" : "key 40 0; key 27 0");
                break;
            case 3:
                pick();
                if (bench.editor.SelectedCount == 0) break;
                mnuEditMove_Click(bench.editor);
                bench.play("click " + point() + "; click " + point());
                break;
            case 4:
                pick();
                if (bench.editor.SelectedCount == 0 || bench.editor.SelectedCount > 50) break;
                mnuEditCopy_Click(bench.editor);
                bench.play("click " + point() + "; click " + point() + "; key 27 0");
                break;
            case 5:
                restyle();
                break;
            default:
                pick();
                if (bench.editor.SelectedCount > 0) DeleteSelection(bench.editor);
                bench.play("key 27 0");
                break;
        }
    }
};

TEST(Undo, AndRedoGiveBackTheSameBytesAfterEveryCommand) {
    for (unsigned seed = 1; seed <= 6; ++seed) {
        UndoBench bench;
        bench.drawing.AttachLabels = seed % 2 == 0;
        bench.addPicture({1, 1, 0.5f, 0.5f, "a.png", "/far/a.png", false});
        ClearHistory(bench.editor);
        LoadMyColors(bench.editor);
        RandomCommands commands{bench, std::mt19937(seed)};
        const std::string start = bench.text();
        std::string beforeUndo;
        for (int i = 0; i < 60; ++i) {
            commands.run();
            beforeUndo = bench.text();
            if (bench.editor.UndoTop == 0) continue;
            bench.undo();
            bench.redo();
            ASSERT_EQ(bench.text(), beforeUndo) << "seed " << seed << ", command " << i;
            ASSERT_EQ(bench.rebuilt(), beforeUndo) << "seed " << seed << ", command " << i;
        }
        const int steps = bench.editor.UndoTop;
        ASSERT_GT(steps, 30);
        ASSERT_LT(steps, 499);
        for (int i = 0; i < steps; ++i)
            bench.undo();
        EXPECT_EQ(bench.text(), start) << "seed " << seed;
        for (int i = 0; i < steps; ++i)
            bench.redo();
        EXPECT_EQ(bench.text(), beforeUndo) << "seed " << seed;
        EXPECT_THAT(bench.machine.reports, IsEmpty());
    }
}

void snapshotOf(UndoBench& bench, int number) {
    bench.drawing.DeviceString = line("InsertLamp|" + std::to_string(number) + "|1|0||1|1|0|False");
    TakeUndoSnapshot(bench.editor);
}

TEST_F(UndoTest, UndoBeyond500LeavesASlotThatRestoresNothingBetweenTwoSteps) {
    for (int i = 1; i <= 501; ++i)
        snapshotOf(*this, i);
    EXPECT_EQ(editor.UndoTop, 501);
    ParseDeviceString(drawing, machine.platform);
    std::vector<Single> seen;
    for (int i = 0; i < 5; ++i) {
        undo();
        EXPECT_EQ(editor.UndoPosition, 500 - i);
        seen.push_back(drawing.devices.DeviceX.at(0));
    }
    EXPECT_THAT(seen, ElementsAre(501, 500, 500, 499, 498));
    EXPECT_THAT(boxes(), IsEmpty());
    for (int i = 0; i < 496; ++i)
        undo();
    EXPECT_EQ(editor.UndoPosition, 0);
    EXPECT_EQ(drawing.devices.DeviceX.at(0), 2) << "the two oldest have fallen off";
}

// Slots may be empty, so a person presses on until the box says that there is no more.
void goToTheEnd(UndoBench& bench, void (*step)(Editor& editor)) {
    const std::size_t before = bench.boxes().size();
    while (bench.boxes().size() == before)
        step(bench.editor);
}

TEST_F(UndoTest, UndoBeyondTheLastSlotIsToldOnceAndGoesOnStepByStep) {
    play("tool Ground");
    for (int i = 0; i < 999; ++i)
        play("click " + std::to_string(1 + i % 2) + " 1");
    EXPECT_THAT(reports(), IsEmpty());
    for (int i = 0; i < 201; ++i)
        play("click " + std::to_string(1 + i % 2) + " 1");
    EXPECT_THAT(reports(), ElementsAre(failure::Subscript));
    for (std::size_t left : {1199u, 1198u, 1197u}) {
        undo();
        EXPECT_THAT(devices(), SizeIs(left));
    }
    play("tool Lamp; click 3 3; key 27 0");
    undo();
    EXPECT_THAT(devices(), SizeIs(1200)) << "what was undone comes back after a new step";
    play("tool Ground; click 3 3; key 27 0");
    goToTheEnd(*this, mnuEditUndo_Click);
    EXPECT_EQ(editor.UndoPosition, 0);
    goToTheEnd(*this, mnuEditRedo_Click);
    EXPECT_THAT(devices(), SizeIs(1201));
    EXPECT_THAT(reports(), SizeIs(1));
    NewDrawing(editor);
    EXPECT_FALSE(editor.HistoryFull);
}

// Whatever takes the tables' items away takes the activity that waits for a point with it.
TEST_F(UndoTest, WhatReplacesTheItemsEndsWhatIsUnderWay) {
    struct Begin {
        const char* what;
        void (*begin)(UndoBench& bench);
    };
    const Begin begins[] = {
        {"copy", [](UndoBench& bench) { mnuEditCopy_Click(bench.editor); }},
        {"copy with its first point",
         [](UndoBench& bench) {
             mnuEditCopy_Click(bench.editor);
             bench.play("click 1 1");
         }},
        {"move with its first point",
         [](UndoBench& bench) {
             mnuEditMove_Click(bench.editor);
             bench.play("click 1 1");
         }},
        {"alignment", [](UndoBench& bench) { mnuEditTextAlignLeft_Click(bench.editor); }},
        {"zoom", [](UndoBench& bench) { cmdZoomIn_Click(bench.editor); }},
        {"line", [](UndoBench& bench) { bench.play("tool Line; click 6 6"); }},
    };
    const struct {
        const char* what;
        void (*replace)(Editor& editor);
    } ends[] = {{"undo", mnuEditUndo_Click},
                {"redo", mnuEditRedo_Click},
                {"parse", ParseShownDevices},
                {"delete", [](Editor& e) {
                     if (e.SelectedCount == 0) mnuEditSelectAll_Click(e);
                     mnuEditDelete_Click(e);
                 }}};
    for (const Begin& begin : begins)
        for (const auto& end : ends) {
            SCOPED_TRACE(std::string(begin.what) + ", " + end.what);
            NewDrawing(editor);
            play("tool Text; click 5 5; click 5 6; key 27 0; tool Ground; click 1 1; click 2 2");
            mnuEditUndo_Click(editor);
            play("key 27 0");
            mnuEditSelectAll_Click(editor);
            begin.begin(*this);
            end.replace(editor);
            EXPECT_EQ(editor.form.cmdReset.BackColor == Cyan, editor.SelectedCount > 0);
            const Short steps = editor.UndoTop;
            play("click 6.5 6.5");
            EXPECT_EQ(editor.UndoTop, steps) << "nothing was left to end with a point";
            const Short before = drawing.devices.DeviceCount;
            play("tool Lamp; click 3 3; key 27 0");
            EXPECT_EQ(drawing.devices.DeviceCount, before + 1);
            EXPECT_EQ(editor.ZoomFactor, 1);
        }
}

// Only the first dash of the first dashed line takes a step; a dragged picture takes none.
TEST_F(UndoTest, WhatHasNoStepOfItsOwnComesBackByRedo) {
    addPicture({1, 1, 2, 2, "a.png", "/far/a.png", false});
    play("tool Dashed Line; click 1 5; click 4 5; click 4 8; key 27 0");
    ASSERT_EQ(editor.UndoTop, 2);
    drawing.PictureTable.at(0).Left = 3;
    RebuildPictureString(drawing, machine.platform);
    const std::string drawn = text();
    undo();
    EXPECT_THAT(devices(), IsEmpty());
    redo();
    EXPECT_EQ(text(), drawn);
    undo();
    play("tool Dashed Line; click 1 2; click 4 2; key 27 0");
    const std::string drawnInBetween = text();
    redo();
    EXPECT_EQ(text(), drawn);
    undo();
    EXPECT_EQ(text(), drawnInBetween);
}

// Records as of a real drawing; `variant` makes some of them differ.
std::string drawingText(int devices, int changed, int variant) {
    std::string text = "///DEVICES///";
    for (int i = 0; i < devices; ++i)
        text += line("InsertNormallyOpenAux|" + std::to_string(i) + "." +
                     std::to_string(i == changed ? variant : i % 7) + "|2.5|0||1|1|0|False");
    return text + "///LABELS///";
}

TEST(UndoHistory, GivesEachTextBackByteForByte) {
    UndoHistory history;
    const std::string texts[] = {"",
                                 "one line",
                                 drawingText(300, 5, 99),
                                 drawingText(301, 5, 98),
                                 std::string(20000, 'x'),
                                 "\n\n\n" + drawingText(300, 5, 99),
                                 std::string("zero\0inside\n", 12),
                                 drawingText(3, 0, 0)};
    for (std::size_t i = 0; i < std::size(texts); ++i)
        history.set(static_cast<Short>(i), texts[i]);
    for (std::size_t i = 0; i < std::size(texts); ++i)
        EXPECT_EQ(history.text(static_cast<Short>(i)), texts[i]) << i;
    history.set(3, "written anew");
    history.shiftDown();
    EXPECT_EQ(history.text(2), "written anew");
    EXPECT_EQ(history.text(1), texts[2]);
    EXPECT_EQ(history.text(7), "");
    EXPECT_THROW(history.set(UndoHistory::Slots, "beyond"), std::out_of_range);
}

// Whatever stands in the lines and however many of them change, neighbours share what is alike.
TEST(UndoHistory, GivesBackTextsThatDifferInAnyOfTheirLines) {
    constexpr const char* Parts[] = {"12.5", "-0.0625\xFF", "1E-07", "\xFF\xFF", "K1",
                                     "\r\n", "\n",          "\n\n",  "0"};
    std::mt19937 random(5);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    std::string text = drawingText(400, -1, 0);
    std::vector<std::string> texts;
    UndoHistory history;
    for (Short slot = 0; slot < 300; ++slot) {
        const std::size_t changes = below(4) == 0 ? 300 : below(4);
        for (std::size_t i = 0; i < changes; ++i) {
            const std::size_t at = below(text.size());
            const std::string part =
                below(20) == 0 ? std::string(below(600), 'x') : Parts[below(9)];
            text.replace(at, below(3) == 0 ? below(40) : part.size(), part);
        }
        texts.push_back(text);
        history.set(slot, text);
    }
    for (std::size_t i = 0; i < texts.size(); ++i)
        ASSERT_EQ(history.text(static_cast<Short>(i)), texts[i]) << i;
}

std::size_t allocated() {
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

TEST(UndoHistory, KeepsAThousandTextsOfFiveThousandDevicesWithin64MiB) {
    constexpr std::size_t Limit = 64 * 1024 * 1024;
    struct Case {
        const char* what;
        void (*change)(std::string& text, std::size_t step);
    };
    const Case cases[] = {
        {"all moved",
         [](std::string& text, std::size_t step) {
             for (std::size_t at = 0; (at = text.find("Aux\xFF", at)) != std::string::npos;)
                 for (at += 4; text[at] != '\xFF'; ++at)
                     if (text[at] != '.')
                         text[at] = static_cast<char>('0' + (at + step * 7919) % 10);
         }},
        {"changed anywhere",
         [](std::string& text, std::size_t step) { text[step * 7919 % text.size()] = '5'; }},
        {"deleted at the start",
         [](std::string& text, std::size_t) { text.erase(12, text.find('\n', 12) - 11); }},
        {"one more of the same",
         [](std::string& text, std::size_t) { text.insert(12, text, 12, text.find('\n') - 11); }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        std::string text = drawingText(5000, -1, 0);
        const std::string first = text;
        UndoHistory history;
        const std::size_t before = allocated();
        std::size_t whole = 0;
        for (Short slot = 0; slot < UndoHistory::Slots; ++slot) {
            if (slot > 0) c.change(text, static_cast<std::size_t>(slot));
            whole += text.size();
            history.set(slot, text);
        }
        EXPECT_GT(whole, 2 * Limit);
        EXPECT_LT(allocated() - before, Limit);
        EXPECT_EQ(history.text(999), text);
        EXPECT_EQ(history.text(0), first);
    }
}

}  // namespace
}  // namespace ladrix::test
