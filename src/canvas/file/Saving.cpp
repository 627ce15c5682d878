#include "canvas/file/Saving.h"

#include <utility>
#include <vector>

#include "canvas/file/PictureFiles.h"
#include "canvas/file/Title.h"
#include "document/DrawingFile.h"

namespace ladrix {

namespace {

// Why the name may not be saved to; "" if it may.
std::string refusal(const Editor& editor) {
    const Drawing& drawing = editor.drawing;
    if (isDemo(drawing) && !editor.LoggedIn)
        return "Could not save the demo. You are not logged in.";
    if (drawing.CurrentFolder == editor.UserSymbolsPath)
        return "Files cannot be saved to the User Symbols Folder. Select a different folder.";
    if (drawing.CurrentFolder == editor.UserButtonsPath)
        return "Files cannot be saved to the User Buttons Folder. Select a different folder.";
    return {};
}

void keepTemplate(Drawing& drawing) {
    if (extensionOf(drawing.CurrentFileName) != ".tpl") return;
    drawing.TemplateActive = true;
    drawing.TemplateDevices = drawing.DeviceString;
    drawing.TemplateLabels = drawing.LabelString;
}

// A failure that repeats brings up no second report: the foot tells it each time.
SaveOutcome notSaved(Editor& editor, SaveResult result, std::string why) {
    editor.form.lblMessage.Caption = why;
    return {result, std::move(why)};
}

// False: the file is to stay as it is.
bool writeText(Editor& editor, SaveName name) {
    const Drawing& drawing = editor.drawing;
    settlePictureNames(editor);
    const std::string text = fileText(drawing);
    if (!MayReplaceFile(editor, text, name)) return false;
    editor.platform.files->replace(drawing.CurrentFolder + drawing.CurrentFileName, text);
    fileTouched(editor, text);
    return true;
}

void tellUnwritten(Editor& editor, const std::vector<UnwrittenPicture>& pictures) {
    std::string names;
    for (const UnwrittenPicture& picture : pictures)
        names.append(names.empty() ? "" : ", ").append(picture.name);
    const bool one = pictures.size() == 1;
    editor.form.lblMessage.Caption =
        std::string(one ? "File saved without the picture " : "File saved without the pictures ") +
        names + ".";
    editor.platform.tell((one ? "The picture " : "The pictures ") + names +
                             " could not be written:\r\n" + pictures.front().why +
                             "\r\n\r\nThe drawing has been saved without " +
                             (one ? "it." : "them."),
                         "Picture Not Saved");
}

}  // namespace

bool isDemo(const Drawing& drawing) {
    return drawing.CurrentFileName == "Demo1.els" || drawing.CurrentFileName == "Demo2.els";
}

void fileTouched(Editor& editor, std::string_view text) {
    RememberFile(editor, text);
    if (editor.FileTouched) editor.FileTouched();
}

SaveOutcome saveUnderName(Editor& editor, SaveName name) {
    Drawing& drawing = editor.drawing;
    if (std::string why = refusal(editor); !why.empty()) {
        editor.platform.tell(why);
        return {SaveResult::Refused, std::move(why)};
    }
    if (mainText(drawing).size() == 2) return {SaveResult::Refused, {}};
    try {
        if (!writeText(editor, name))
            return notSaved(editor, SaveResult::Refused, "The drawing was not saved.");
    } catch (const Failure& failure) {
        drawing.DrawingChanged = true;
        SaveOutcome outcome =
            notSaved(editor, SaveResult::Failed, "The drawing was not saved. " + failure.text);
        editor.platform.ReportError("Save Drawing", failure);
        return outcome;
    }
    const std::vector<UnwrittenPicture> unwritten = writePictures(editor);
    keepTemplate(drawing);
    drawing.SaveInProgress = false;
    drawing.TitleState = 1;
    drawing.DrawingChanged = !unwritten.empty();
    editor.backups.shown.clear();
    editor.PreviewedFile.clear();
    editor.form.lblMessage.Caption = "File saved.";
    UpdateTitle(editor);
    if (!unwritten.empty()) tellUnwritten(editor, unwritten);
    return {};
}

}  // namespace ladrix
