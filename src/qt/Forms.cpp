#include "qt/Forms.h"

#if __has_include("qt/FileDialog.h")
#include "qt/DescriptionDialog.h"
#include "qt/FileDialog.h"
#include "qt/LogDialog.h"
#else
#include <QWidget>
#endif

namespace ladrix {

#if __has_include("qt/FileDialog.h")

void runForm(Program& program, QWidget* window, Form form) {
    switch (form) {
        case Form::frmFile:
            FileDialog(program, window).run();
            return;
        case Form::frmDesc:
            DescriptionDialog(program, window).run();
            return;
        case Form::frmLog:
            LogDialog(program, window).run();
            return;
    }
}

#else

void runForm(Program& program, QWidget*, Form) {
    program.frmFile.Visible = program.editor.frmDesc.Visible = program.frmLog.Visible = false;
}

#endif

}  // namespace ladrix
