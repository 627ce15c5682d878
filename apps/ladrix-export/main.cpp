// Drawings and symbol galleries as PDF, SVG, PNG or BMP, without a display.
#include <QGuiApplication>
#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

#include "qt/Export.h"

namespace {

// Standard error belongs to the one line that says why an export failed; the toolkit's remarks on
// the machine are not about that. Its fatal ones are.
void dropRemarks(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtFatalMsg) std::cerr << "ladrix-export: " << text.toStdString() << '\n';
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
    // The toolkit gets none of them: all are this program's own.
    qInstallMessageHandler(dropRemarks);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int ownCount = std::min(argc, 1);
    const QGuiApplication application(ownCount, argv);
    return ladrix::exportMain(arguments, std::cout, std::cerr);
}
