// Opening and saving the largest drawing in the real window: from the confirmed choice to the
// painted window beside reading the file, a bare split of it and a bare painter loop; a save beside
// a bare copy of the same bytes to disk; and the memory that the drawing takes.
#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

#include <cstring>
#include <fstream>

#include "EditorWindow.h"
#include "FullDrawing.h"
#include "Measure.h"
#include "canvas/file/DrawingCommands.h"
#include "document/DrawingFile.h"

namespace {

using namespace ladrix;
using namespace ladrix::bench;

constexpr int Rounds = 11;
constexpr double OpenLimit = 1.3;

void require(bool good, const char* what) {
    if (!good) throw std::runtime_error(what);
}

std::string readBare(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY);
    require(file >= 0, "the file could not be opened");
    std::string text(static_cast<std::size_t>(lseek(file, 0, SEEK_END)), '\0');
    const ssize_t length = pread(file, text.data(), text.size(), 0);
    close(file);
    require(length == static_cast<ssize_t>(text.size()), "the file could not be read");
    return text;
}

void splitBare(std::string_view text, std::vector<std::string_view>& fields) {
    fields.clear();
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t lineEnd = std::min(text.find('\n', start), text.size());
        for (const std::size_t stop = lineEnd; start < stop;) {
            const auto* const found =
                static_cast<const char*>(std::memchr(text.data() + start, '\xFF', stop - start));
            const std::size_t end = found ? static_cast<std::size_t>(found - text.data()) : stop;
            fields.push_back(text.substr(start, end - start));
            start = end + 1;
        }
        start = lineEnd + 1;
    }
}

void copyBare(const std::string& text, const std::string& path) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    require(file >= 0, "the copy could not be made");
    const ssize_t length = write(file, text.data(), text.size());
    const bool good = length == static_cast<ssize_t>(text.size()) && fsync(file) == 0;
    require(close(file) == 0 && good, "the copy could not be written");
}

double heapInUse() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

double residentMemory() {
    std::ifstream file("/proc/self/statm");
    double total = 0, resident = 0;
    file >> total >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

class FullFile {
  public:
    FullFile(EditorWindow& editorWindow, const std::string& name, Outlines outlines)
        : window_(editorWindow), folder_(editor().drawing.CurrentFolder), name_(name + ".els") {
        // Made beside the editor's own drawing, which is to grow with the first open.
        Drawing made;
        made.PageLayoutKey = "17x22Landscape";
        made.devices = fullTable(symbolsOfEight(outlines), LargestCount, window_.visibleWidth(),
                                 window_.visibleHeight());
        RebuildDeviceString(made, window_.machine.platform);
        window_.machine.files.replace(folder_ + name_, fileText(made), false);
        Symbols symbols;
        Collector collector;
        drawAll(symbols, made, window_.machine.platform, collector);
        primitives_ = std::move(collector.primitives);
    }

    void openOurs() {
        editor().drawing.CurrentFolder = folder_;
        editor().drawing.CurrentFileName = name_;
        OpenDrawing(editor());
        window_.showAll();
        require(editor().drawing.devices.DeviceCount == LargestCount, "the file was not opened");
    }
    void openBare() {
        text_ = readBare(folder_ + name_);
        splitBare(text_, fields_);
        QPainter painter(&image_);
        painter.setRenderHint(QPainter::Antialiasing);
        drawBare(painter, primitives_);
    }
    void saveOurs() {
        SaveDrawing(editor());
        require(!editor().drawing.DrawingChanged, "the drawing could not be saved");
    }
    void saveBare() { copyBare(text_, folder_ + "copy"); }

  private:
    Editor& editor() { return window_.editor(); }

    EditorWindow& window_;
    std::string folder_, name_, text_;
    std::vector<BarePrimitive> primitives_;
    std::vector<std::string_view> fields_;
    QImage image_ = QImage(window_.window->canvas().size(), QImage::Format_RGB32);
};

// What stays after the first drawing is open, per device, beside 1 KB.
void printMemory(FullFile& file) {
    malloc_trim(0);
    const double heap = heapInUse(), resident = residentMemory();
    file.openOurs();
    const auto perDevice = [](double bytes) { return bytes / 1024 / LargestCount; };
    const Medians ofHeap{perDevice(heapInUse() - heap), 1};
    const Medians ofResident{perDevice(residentMemory() - resident), 1};
    printHeading("Memory of a device beside 1 KB, KB");
    printLine("heap in use", ofHeap, 1);
    printLine("resident", ofResident, 1);
}

}  // namespace

int main(int argc, char** argv) {
    chooseDisplay();
    try {
        EditorWindow window(argc, argv);
        FullFile lines(window, "Lines", Outlines::Lines);
        FullFile curved(window, "Curved", Outlines::Curved);
        printMemory(lines);
        const auto open = [](FullFile& file) {
            return byTurns(
                Rounds, [&] { file.openOurs(); }, [&] { file.openBare(); });
        };
        printHeading(
            "Open 32,767 devices, to the painted window, beside bare read, split and paint, ms");
        printLine("symbols of lines", open(lines), OpenLimit);
        printLine("symbols with curves", open(curved), OpenLimit);
        printHeading("Save it beside a bare copy and fsync of the same bytes, on the wall, ms");
        printLine("save",
                  byTurns<WallClock>(
                      Rounds, [&] { curved.saveOurs(); }, [&] { curved.saveBare(); }),
                  0);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "FileBench: %s\n", error.what());
        return 1;
    }
    return 0;
}
