#include "qt/Export.h"

#include <array>
#include <cmath>
#include <exception>
#include <optional>
#include <ostream>
#include <vector>

#include "document/DrawingFile.h"
#include "document/PageLayout.h"
#include "document/Records.h"
#include "output/Gallery.h"
#include "output/PageReplay.h"
#include "platform/DiskFiles.h"
#include "platform/Encoding.h"
#include "platform/Numbers.h"
#include "platform/SilentDialogs.h"
#include "qt/PageFile.h"
#include "qt/QtFonts.h"
#include "qt/QtImages.h"

namespace ladrix {

namespace {

constexpr std::string_view Help =
    "Usage: ladrix-export [--scale N] DRAWING OUTPUT\n"
    "       ladrix-export [--scale N] --gallery LIBRARY OUTPUT\n"
    "\n"
    "Writes a drawing (.els, .tpl) as a PDF, SVG, PNG or BMP file, by the ending of OUTPUT:\n"
    ".pdf, .svg, .png or .bmp.\n"
    "\n"
    "  --scale N          pixels per inch of a bitmap, 96 if not given\n"
    "  --gallery LIBRARY  all symbols of a library instead of a drawing: Common, NEMA, IEC,\n"
    "                     Electronic or Hyd\n"
    "  --help             this text\n";

constexpr std::string_view Hint = "; see ladrix-export --help";

// Ends the run with status 1 and this line.
struct Refusal {
    std::string line;
};

struct Request {
    bool help = false;
    std::optional<Library> gallery;
    std::string drawing, output;  // core text
    double pixelsPerInch = DefaultPixelsPerInch;
};

Library libraryOf(const std::string& name) {
    struct Entry {
        std::string_view name;
        Library library;
    };
    static constexpr std::array<Entry, 5> Libraries{{{"Common", Library::Common},
                                                     {"NEMA", Library::NEMA},
                                                     {"IEC", Library::IEC},
                                                     {"Electronic", Library::Electronic},
                                                     {"Hyd", Library::FluidPower}}};
    for (const Entry& entry : Libraries)
        if (equalIgnoringCase(entry.name, name)) return entry.library;
    throw Refusal{"There is no library \"" + name + "\"" + std::string(Hint)};
}

double scaleOf(const std::string& text) {
    const std::optional<Single> value = typedNumber(text);
    if (!value || !std::isfinite(*value) || *value < 1)
        throw Refusal{"--scale takes a number of pixels per inch from 1 on, not \"" + text + "\""};
    return static_cast<double>(*value);
}

Request requestOf(std::span<const std::string> arguments) {
    Request request;
    std::vector<std::string> files;
    bool options = true;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string argument = fromUtf8(arguments[i]);
        const auto value = [&] {
            if (i + 1 == arguments.size())
                throw Refusal{argument + " lacks its value" + std::string(Hint)};
            return fromUtf8(arguments[++i]);
        };
        if (!options || !argument.starts_with('-') || argument == "-") {
            files.push_back(argument);
        } else if (argument == "--") {
            options = false;
        } else if (argument == "--help" || argument == "-h") {
            request.help = true;
            return request;
        } else if (argument == "--scale") {
            request.pixelsPerInch = scaleOf(value());
        } else if (argument == "--gallery") {
            request.gallery = libraryOf(value());
        } else {
            throw Refusal{"Unknown option " + argument + std::string(Hint)};
        }
    }
    if (files.size() != (request.gallery ? 1u : 2u))
        throw Refusal{(request.gallery ? "One output file" : "A drawing and an output file") +
                      std::string(" must be named") + std::string(Hint)};
    request.output = files.back();
    if (!request.gallery) request.drawing = files.front();
    return request;
}

PageFormat formatOf(const std::string& output) {
    if (const std::optional<PageFormat> format = pageFormatOf(output)) return *format;
    throw Refusal{output + " does not end in .pdf, .svg, .png or .bmp"};
}

// Nobody is asked and nothing is shown: what the core tells is kept.
class KeptMessages final : public SilentDialogs {
  public:
    std::vector<std::string> told;

    Answer message(std::string_view text, std::string_view, Buttons) override {
        told.emplace_back(text);
        return Answer::Ok;
    }
};

// Routines for free lines set properties of the canvas, whatever they draw on.
class AbsentCanvas final : public Canvas {
  public:
    void Line(Single, Single, Single, Single, Long, LineForm) override {}
    void Circle(Single, Single, Single, Long, Single) override {}
    void Arc(Single, Single, Single, Long, double, double, Single) override {}
    std::string_view Name() const override { return "picLX"; }
    void Text(Single, Single, const FontSpec&, std::string_view, Long) override {}
    void PaintPicture(const Picture&, Single, Single, Single, Single) override {}
    void Cls() override {}
    void SetScale(Single, Single, Single) override {}
    void repaint(const Extent&, const std::function<void()>&) override {}
    std::string Image(Single, Single, const std::function<void()>&) override { return {}; }
};

// The platform of a program without windows.
struct ExportMachine {
    AbsentCanvas canvas;
    KeptMessages dialogs;
    DiskFiles files;
    QtImages images;
    QtFonts fonts;
    QtPageFiles pageFiles;
    Platform platform;

    ExportMachine() {
        platform.picLX = &canvas;
        platform.dialogs = &dialogs;
        platform.files = &files;
        platform.images = &images;
        images.tell = [this](std::string_view text) { dialogs.told.emplace_back(text); };
        platform.fonts = &fonts;
        platform.pageFiles = &pageFiles;
        platform.ReportError = [this](std::string_view, const Failure& failure) {
            dialogs.told.push_back(failure.text);
        };
    }
    ExportMachine(const ExportMachine&) = delete;
    ExportMachine& operator=(const ExportMachine&) = delete;
};

std::string fileNameOf(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

// Any file can be split somehow; this tells whether there was something to split.
bool isDrawing(const DrawingParts& parts, std::string_view text) {
    if (!pageSize(parts.pageKey)) return false;
    const bool empty = parts.devices.empty() && parts.labels.empty() && !parts.pictures;
    return !empty || text.find(parts.pageKey) != std::string_view::npos;
}

void requireNothingTold(const ExportMachine& machine, const std::string& name) {
    if (!machine.dialogs.told.empty())
        throw Refusal{name + " is not a drawing, or damaged: " + machine.dialogs.told.front()};
}

Drawing readDrawing(ExportMachine& machine, const std::string& path) {
    Drawing drawing;
    drawing.CurrentFileName = fileNameOf(path);
    drawing.CurrentFolder = path.substr(0, path.size() - drawing.CurrentFileName.size());
    if (drawing.CurrentFolder.empty()) drawing.CurrentFolder = "./";
    std::string text;
    try {
        text = machine.files.read(path, LargestDocument);
    } catch (const Failure& failure) {
        throw Refusal{"Cannot read " + failure.text};
    }
    const std::optional<FileEntry> entry = machine.files.status(path);
    DrawingParts parts = splitFile(text, entry ? entry->modified : FileTime::clock::now());
    if (!isDrawing(parts, text)) throw Refusal{drawing.CurrentFileName + " is not a drawing"};
    takeParts(drawing, std::move(parts));
    ParseDeviceString(drawing, machine.platform);
    ParseLabelString(drawing, machine.platform);
    requireNothingTold(machine, drawing.CurrentFileName);
    if (!text.ends_with(LineEnd))
        machine.dialogs.told.emplace_back("The file's last line is cut short and left out");
    ParsePictureString(drawing, machine.platform);
    return drawing;
}

void writeOutput(ExportMachine& machine, const PageContent& content, PageFormat format,
                 const Request& request) {
    const std::string file =
        machine.platform.pageFiles->make(content, format, request.pixelsPerInch);
    try {
        machine.files.replace(request.output, file, false);
    } catch (const Failure& failure) {
        throw Refusal{"Cannot write " + failure.text};
    }
}

void exportGallery(ExportMachine& machine, const Request& request, PageFormat format) {
    Symbols symbols;
    const GallerySheet sheet = gallerySheet(*request.gallery);
    PageContent content;
    content.width = static_cast<double>(sheet.width);
    content.height = static_cast<double>(sheet.height);
    content.title = std::string(libraryTitle(*request.gallery)) + " symbols";
    content.paint = [&](Page& page) { drawGallery(page, symbols, machine.platform, sheet); };
    writeOutput(machine, content, format, request);
}

void exportDrawing(ExportMachine& machine, const Request& request, PageFormat format) {
    Drawing drawing = readDrawing(machine, request.drawing);
    Symbols symbols;
    std::size_t unknown = 0;
    std::string unknownName;
    symbols.DrawUserSymbol = [&](const DeviceBlock& block) {
        if (unknown++ == 0) unknownName = block.CurDevice;
    };
    std::string leftOut;
    const PageContent content =
        drawingPage(symbols, drawing, machine.platform, *pageSize(drawing.PageLayoutKey), leftOut);
    writeOutput(machine, content, format, request);
    if (!leftOut.empty()) machine.dialogs.told.push_back(leftOut);
    if (unknown > 0)
        machine.dialogs.told.push_back(
            std::to_string(unknown) +
            (unknown == 1 ? " unknown symbol is" : " unknown symbols are") +
            " left out: " + unknownName + (unknown == 1 ? "" : ", ..."));
}

// A file name may hold line ends; a message is one line all the same.
void printLine(std::ostream& err, std::string text) {
    for (char& c : text)
        if (static_cast<unsigned char>(c) < ' ') c = ' ';
    err << "ladrix-export: " << toUtf8(text) << '\n';
}

void run(const Request& request, std::ostream& err) {
    const PageFormat format = formatOf(request.output);
    ExportMachine machine;
    if (request.gallery) {
        exportGallery(machine, request, format);
    } else {
        exportDrawing(machine, request, format);
    }
    for (const std::string& text : machine.dialogs.told)
        printLine(err, text);
}

}  // namespace

int exportMain(std::span<const std::string> arguments, std::ostream& out, std::ostream& err) {
    try {
        const Request request = requestOf(arguments);
        if (request.help) {
            out << Help;
            return 0;
        }
        run(request, err);
        return 0;
    } catch (const Refusal& refusal) {
        printLine(err, refusal.line);
    } catch (const Failure& failure) {
        printLine(err, failure.text);
    } catch (const std::exception& exception) {
        printLine(err, std::string("Not enough memory or an internal error: ") + exception.what());
    }
    return 1;
}

}  // namespace ladrix
