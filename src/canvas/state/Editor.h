// The editor: the drawing and everything that a gesture on the canvas reads or changes. One state
// for all handlers; reset brings back the defaults that stand here.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "canvas/history/UndoHistory.h"
#include "canvas/state/FormLX.h"
#include "document/Drawing.h"
#include "platform/Platform.h"
#include "symbols/DrawDevice.h"

namespace ladrix {

constexpr Single NoPoint = -1;

// Label sizes found for a font at a zoom.
struct FittedFonts {
    using Key = std::tuple<std::string, Single, bool, bool, Single>;
    std::map<Key, Single> sizes;
};

// Copies of items, apart from the drawing: what a copy pastes at each further click.
struct CopyBuffer {
    DeviceTable devices;
    LabelTable labels;
    std::vector<PictureRow> pictures;
    std::vector<std::shared_ptr<const Picture>> img;  // beside `pictures`
};

// A picture that follows the pointer, and where both were at the press.
struct PictureDrag {
    Short index = -1;  // -1: none
    Single pressX = 0, pressY = 0, left = 0, top = 0;
    bool moved = false;
};

// The selected labels that follow the pointer; their rows keep their places until the release.
struct LabelDrag {
    Short index = -1;               // the label that was pressed; -1: none
    Single pressX = 0, pressY = 0;  // inches of the page
    bool moved = false;
};

// What the next press on the canvas aligns the selected labels by.
enum class TextAlignment { None, Left, Right, Top };

// Where a picture came from, and its image.
struct KnownPicture {
    std::string FullPath;
    std::shared_ptr<const Picture> image;
};

// The drawing's file as this run read or wrote it last.
struct FileSeen {
    std::string path;  // "": none yet
    std::size_t sum = 0;
};

// Backup copies in the place of the drawing that they are of.
struct BackupState {
    // While they are offered: their folder, a file of which is opened under the drawing's name.
    std::string offered, CurrentFolder, CurrentFileName;
    std::string shown;  // the copy that the drawing came from, until it is saved
};

// What the pointer is in the middle of. Reset brings back the defaults that stand here.
struct Gesture {
    // The tool in hand. -1: none.
    Short CurrentTool = -1;
    std::string ToolName;
    bool ToolActive = false;      // grips are not offered
    bool ToolCursor = false;      // cross cursor and ghost are on
    bool ToolBlocksBand = false;  // a drag starts no band
    bool TestSymbolMode = false;

    // A button held on the canvas, and the band.
    bool MouseIsDown = false, BandArmed = false, BandShown = false;
    Single BandX[2] = {0, 0}, BandY[2] = {0, 0};
    bool SnapXFound = false, SnapYFound = false;

    // A line or square with its first corner.
    Single LineStartX = NoPoint, LineStartY = NoPoint, LineEndX = NoPoint, LineEndY = NoPoint;
    Short DashedMode = 0;
    bool SquareStarted = false;

    // Copy or move: stage 1 waits for FROM, stage 2 for TO. Inches.
    bool CopyArmed = false, MoveMode = false;
    Short CopyStage = 0;
    Single CopyFromX = 0, CopyFromY = 0, CopyToX = 0, CopyToY = 0;

    // The next press zooms, aligns the selected labels, or gives a user symbol's point.
    bool ZoomInPending = false, ZoomOutPending = false;
    bool TextAlignPending = false;
    TextAlignment textAlignment = TextAlignment::None;
    Single TextAlignX = 0, TextAlignY = 0;
    bool SavingUserSymbol = false, SymbolPointPending = false, SymbolPointFound = false;

    bool SelectionColorPending = false;  // the next colour chosen is the selection's

    // The text being placed.
    std::string TextBuffer;
    bool TextGhostShown = false;
    Single TextGhostX = 0, TextGhostY = 0;

    PictureDrag draggedPicture;
    LabelDrag draggedLabels;
};

// The label that is open in txtEdit.
struct LabelEdit {
    Short index = -1;  // -1: none
    std::string text;  // typed so far
    Single left = 0;   // of that text, inches
};

struct Editor {
    explicit Editor(const Platform& machine) : platform(machine) {}

    const Platform& platform;
    Drawing drawing;
    Symbols symbols;
    FormLX form;

    // What is under way.
    Gesture gesture;
    LabelEdit labelEdit;

    // The palette. -1: no button.
    Short PreviousTool = -1, RepeatTool = -1;
    std::string RepeatName;  // the tool that was pressed last, as ToolName; "" before
    Short LastBuiltInButton = BuiltInButtonCount;
    bool Arranging = false;  // the palette is being arranged
    Library OpenLibrary = Library::NEMA;
    Short TallScreen = 1;
    std::string UserLibraryName = "User Symbols";

    // The pointer.
    Single PreviousX = NoPoint, PreviousY = NoPoint;  // of the move before
    Single SnapX = 0, SnapY = 0;
    Single SnapStep = 0.25f;  // inches

    // Lines, squares, circles and arcs.
    bool ThickLineTool = false;
    Single DashSpacing = 0.125f;  // inches
    Single CircleRadius = 0.0375f, ArcRadius = 0.125f;
    Single LastSmallCircle = 0, LastLargeCircle = 0, LastArc = 0;  // radius typed last; 0: none
    Single ArcStartAngle = 0, ArcEndAngle = 0;                     // radians
    Long CurrentColor = Black, SelectionColor = Magenta;
    std::string SymbolWidthTag;
    Single SymbolScaleX = 1, SymbolScaleY = 1;
    bool SymbolFlip = false;

    CopyBuffer copied;           // outlives the copy
    bool CopyExplained = false;  // the message of the first copy has been shown
    bool SimulationMode = false;
    bool SnapshotPending = false;  // items were stretched or moved by keys

    // Text and selection.
    bool TextBoxFocused = false;
    bool AutoIncrement = false, AddSpace = false;
    Short LastSelectedLabel = -1;  // the one label that is selected; -1: none or several
    Short SelectedCount = 0, SelectedDeviceCount = 0, SelectedLabelCount = 0;
    Short SelectedPicture = -1;  // the last one selected

    // The view.
    Single PageWidth = 8.5f, PageHeight = 11;           // inches
    Single VisibleWidth = 8.5f, VisibleHeight = 6.75f;  // inches of the page in the frame
    Single CanvasScaleWidth = 8.5f, CanvasScaleHeight = 11;
    Single ScaleLeft = 0, ScaleTop = 0;  // inches
    Single ZoomFactor = 1;
    Short ZoomStepCount = 0;
    Single ZoomPointX = 0, ZoomPointY = 0;        // the press that zooms, or the last placement
    Single ZoomFractionX = 0, ZoomFractionY = 0;  // where it stood in the view at 100 percent
    Single HScrollTarget = 0, VScrollTarget = 0;  // hundredths of an inch; the bars take them
    bool StretchMode = false, Stretching = false, StretchTold = false;
    Single StretchX = 0;  // twips within picFrame, of the move before
    bool GridOn = false, GridFollowsSnap = false, BlackBackground = false;
    Long GridColor = 0xE0E0E0;
    bool Redrawing = false;
    FittedFonts fittedFonts;

    std::vector<std::shared_ptr<const Picture>> img;  // the loaded pictures, beside PictureTable
    bool LoggedIn = false;                            // the author's login is in force

    FileSeen fileSeen;
    BackupState backups;
    // The file whose preview stands in the tables in the place of the drawing, until another
    // drawing does or the drawing is saved. "": none.
    std::string PreviewedFile;
    // What was read of the pictures' files, by full path.
    std::map<std::string, std::shared_ptr<const std::string>, std::less<>> KeptPictureFiles;

    // What the open dialog of the description holds.
    struct {
        bool Visible = false;
        std::string txtDescription;
    } frmDesc;

    // Undo and redo.
    UndoHistory history;
    Short UndoTop = 0, UndoPosition = 0;  // the newest snapshot, the one shown
    // The slot whose texts are shown: not UndoPosition where that one is empty; -1: none, a
    // preview.
    Short UndoShown = 0;
    bool HistoryFull = false;  // the box that tells it has been shown
    std::map<std::string, KnownPicture, std::less<>> HistoryPictures;  // by file name

    // The drawing has been read from its file or written to it. Set once by the layer above.
    std::function<void()> FileTouched;

    // A user symbol's insertion point has been clicked, inches; `label` is the label that took the
    // click, -1 for the canvas. Set once by the layer above.
    std::function<void(Single x, Single y, Short label)> SymbolPointTaken;

    // What the pointer does on the canvas while SimulationMode is on. Set once by the layer above.
    struct {
        std::function<void(Single x, Single y)> move;
        std::function<void()> press, release;
    } simulation;

    // Set once by the layer above.
    std::string AppFilePath, BasePath, UserSymbolsPath, UserButtonsPath;
};

}  // namespace ladrix
