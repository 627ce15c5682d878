// The drawing in memory and what belongs to it: the tables, their master texts and the flags that
// tell how far it agrees with its file. Lives for the whole run; a new drawing empties it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "document/Tables.h"
#include "platform/Platform.h"

namespace ladrix {

// What the user asked for when the save prompt came up: the save goes on with it.
enum class After { Nothing, New, Open, Exit };

struct Drawing {
    DeviceTable devices;
    LabelTable labels;
    std::vector<PictureRow> PictureTable;
    Short PictureCount = 0;

    // The same content in the form in which it goes to disk: one record a line, each ended by CR
    // LF.
    std::string DeviceString, LabelString, PictureString;
    RecordOffsets DeviceRecords, LabelRecords;
    Short PictureRecords = 0;  // pictures in the table when it last agreed with PictureString
    std::string_view DeviceRecord(Short index) const;
    std::string_view LabelRecord(Short index) const;

    bool NoRecord = false;        // the tables are being replayed; nothing is recorded
    bool DrawingPreview = false;  // a temporary image is being drawn; nothing is recorded
    bool AttachLabels = true;
    bool LabelPending = false;    // the device's label is not finished yet
    bool DeviceRecorded = false;  // read by the text entry box
    bool DashedLine = false;      // lines arrive as the dashes of one line
    bool NoSnapshot = false;      // a user symbol's script is running
    Short DashesCounted = 0, DashesRecorded = 0;
    Short CurrentLabel = -1;  // the label recorded last
    // What every new label takes in place of its own colour: the present colour of the layer above,
    // which owns it. None: each keeps its own.
    const Long* FixedLabelColor = nullptr;
    std::string DefaultFontName = "Arial";
    Short DefaultFontSize = 8;
    bool DefaultFontBold = false, DefaultFontItalic = false;

    std::string CurrentFolder, CurrentFileName;  // "" for the name: untitled
    std::string FileDescription;
    std::string PageLayoutKey = "8.5x11Portrait";
    bool DrawingChanged = false;
    // New until something is recorded, Open until a drawing is opened, both until the browser has
    // been left; Exit until the next of them.
    After AfterSave = After::Nothing;
    bool SaveInProgress = false;  // the browser is up, or about to be, to save
    bool TemplateActive = false;
    std::string TemplateDevices, TemplateLabels;
    bool Reading = false;
    bool ReadIncomplete = false;  // a parser gave up since a file's text was taken
    Short TitleState = 0;         // 0 untitled, 1 named
    std::string TempFolder;
    std::string PictureParentFolder, PictureFolderName;

    // Set once by the layer above.
    std::function<void()> TakeUndoSnapshot = [] {};
};

// What was asked for is not wanted any more.
void forgetAfterSave(Drawing& drawing, After after);

// Every name of these is drawn from its own geometry, in place of scale and orientation.
bool isFreeLineOrSquare(std::string_view name);
bool isCircleName(std::string_view name);  // InsertCircle, InsertSolidCircle

// Adds a device at the end of the table and its record at the end of DeviceString, sets
// DrawingChanged and takes the undo snapshot that is due. A slot that already holds the name is
// left alone. Writes the corrected width tag and aspect back to `device`. A failure (the 32,768th
// device) goes to the shared report, with the table as it was.
//
// This and the next are cheap while the text was written here. The first record after a reading
// remakes the text from the rows: it may have been in another form, and one text has one form. What
// could not be read of it is gone then.
void RecordDevice(Drawing& drawing, const Platform& platform, Device& device);

// The label as RecordLabel takes it: an empty text becomes "Type New Text", and the colour is the
// fixed one if there is one.
Label newLabel(const Drawing& drawing, Label label);

// Adds a label, its record at the end of LabelString, and takes the undo snapshot; on the canvas
// only while a preview is drawn.
void RecordLabel(Drawing& drawing, const Platform& platform, Label label);

// Remake the records and the master text from the columns. With a count of 0 they leave a text that
// never became rows (it could not be read) as it is, and empty one whose rows have been deleted. A
// value that cannot be written goes to the shared report, with the text as it was.
void RebuildDeviceString(Drawing& drawing, const Platform& platform);
void RebuildLabelString(Drawing& drawing, const Platform& platform);
void RebuildPictureString(Drawing& drawing, const Platform& platform);

// Empties the tables and the master texts.
void ClearTables(Drawing& drawing);

}  // namespace ladrix
