#include "SaveLoop.h"

#include <cstdio>

#include "Journey.h"
#include "canvas/DrawingCommands.h"

namespace ladrix::test {

int runSaveLoop(const std::string& path) {
    const Home home;
    Journey journey(home);
    Drawing& drawing = journey.editor().drawing;
    const auto name = path.rfind('/') + 1;
    drawing.CurrentFolder = path.substr(0, name);
    drawing.CurrentFileName = path.substr(name);
    OpenDrawing(journey.editor());
    if (drawing.devices.DeviceCount == 0) return 1;
    for (bool other = true;; other = !other) {
        drawing.FileDescription = other ? OtherDescription : OneDescription;
        Journey::key(Qt::Key_S, Qt::ControlModifier);
        if (journey.message() != "File saved.") return 1;
        std::puts("saved");
        std::fflush(stdout);
    }
}

}  // namespace ladrix::test
