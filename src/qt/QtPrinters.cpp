#include "qt/QtPrinters.h"

#include <QPageLayout>
#include <QPrinter>
#include <QPrinterInfo>
#include <atomic>
#include <cmath>
#include <exception>
#include <thread>

#include "qt/CupsQueue.h"
#include "qt/PageFile.h"
#include "qt/QtText.h"

namespace ladrix {

namespace {

constexpr int PollMilliseconds = 40;
constexpr double SizeTolerance = 0.06;  // inches, between two makers' papers of one name

// Runs what the toolkit does in one piece beside the event loop, so that windows still answer.
template <class Work>
void beside(const Platform& platform, const Work& work) {
    std::exception_ptr failed;
    std::atomic<bool> done = false;
    std::thread worker([&] {
        try {
            work();
        } catch (...) {
            failed = std::current_exception();
        }
        done = true;
    });
    while (!done) {
        platform.letEventsRun();
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    worker.join();
    if (failed) std::rethrow_exception(failed);
}

bool isAbout(QSizeF a, QSizeF b) {
    return std::abs(a.width() - b.width()) < SizeTolerance &&
           std::abs(a.height() - b.height()) < SizeTolerance;
}

PaperArea wholeArea(QSizeF paper) {
    return {paper, QRectF(QPointF(), paper)};
}

}  // namespace

// ---- The printer

void QtPrinter::use(const QString& queue) {
    queue_ = queue;
    papers_.clear();
    pageHasChanged();
}

std::string QtPrinter::DeviceName() const {
    return queue_.isEmpty() ? std::string(PdfPrinterName) : fromQString(queue_);
}

// A driver is slow to ask, and every text on the page is measured in its scale.
std::optional<PrinterPaper> QtPrinter::paper(Short code, Short orientation) const {
    const auto [place, isNew] = papers_.try_emplace({code, orientation});
    if (isNew) place->second = askForPaper(code, orientation);
    return place->second;
}

// Of a queue alone: what its driver knows of the paper.
std::optional<PrinterPaper> QtPrinter::askForPaper(Short code, Short orientation) const {
    const QSizeF wanted = paperSizeOf(code);
    const QPrinterInfo info = QPrinterInfo::printerInfo(queue_);
    for (const QPageSize& size : info.supportedPageSizes()) {
        const bool lies = isAbout(size.size(QPageSize::Inch), wanted);
        if (!lies && !(code == 4 && isAbout(size.size(QPageSize::Inch), wanted.transposed())))
            continue;
        QPrinter device(info, QPrinter::HighResolution);
        device.setPageSize(size);
        const bool wide = (orientation == LandscapePaper) != !lies;
        device.setPageOrientation(wide ? QPageLayout::Landscape : QPageLayout::Portrait);
        device.setPageMargins(device.pageLayout().minimumMargins());
        const QPageLayout layout = device.pageLayout();
        return PrinterPaper{
            size.key().toUtf8(),
            {layout.fullRect(QPageLayout::Inch).size(), layout.paintRect(QPageLayout::Inch)}};
    }
    return std::nullopt;
}

PaperArea QtPrinter::areaFor(Short code, Short orientation, QSizeF userScale) const {
    if (queue_.isEmpty() && !userScale.isEmpty()) return wholeArea(userScale);
    if (!queue_.isEmpty())
        if (const std::optional<PrinterPaper> known = paper(code, orientation)) return known->area;
    const QSizeF size = paperSizeOf(code);
    return wholeArea(orientation == LandscapePaper ? size.transposed() : size);
}

PaperArea QtPrinter::area() const {
    return areaFor(PaperSize(), Orientation(), hasUserScale() ? userScale() : QSizeF());
}

void QtPrinter::SetPaperSize(Short code) {
    if (!queue_.isEmpty() && !paperSizeOf(code).isEmpty() && !paper(code, PortraitPaper))
        throw Failure{failure::InvalidProperty, DeviceName() + " has no paper of this size."};
    PrinterPage::SetPaperSize(code);
}

bool QtPrinter::StartDoc(const PrintDocument& document) {
    // Windows answer during a print, the help's with its own "Print" among them.
    if (underWay_) throw Failure{failure::DeviceIO, "Another document is still being printed."};
    std::optional<FileEntry> there;
    if (queue_.isEmpty()) there = platform_.files->status(document.path + ".pdf");
    document_ = document;
    abandoned_ = false;
    underWay_ = true;
    if (there)
        underWay_ =
            platform_.dialogs->message(there->name + " already exists. Do you want to replace it?",
                                       PdfPrinterName, Buttons::YesNo) == Answer::Yes;
    return underWay_;
}

QPainter& QtPrinter::begin() {
    if (painter_.isActive()) return painter_;
    pageSize_ = area().paper;
    buffer_.setData({});
    buffer_.open(QIODevice::WriteOnly);
    writer_ = std::make_unique<QPdfWriter>(&buffer_);
    setUpPdf(*writer_, pageSize_, document_.title);
    unitsPerInch_ = PdfUnitsPerInch;
    if (!painter_.begin(writer_.get()))
        throw Failure{failure::DeviceIO, "The page cannot be painted."};
    return painter_;
}

void QtPrinter::NewPage() {
    begin();
    flush();
    bool begun = false;
    beside(platform_, [&] { begun = writer_->newPage(); });
    if (!begun) throw Failure{failure::DeviceIO, "The printer takes no further page."};
    pageHasChanged();
}

void QtPrinter::drop() {
    if (painter_.isActive()) {
        flush();
        painter_.end();
    }
    writer_.reset();
    buffer_.close();
    buffer_.setData({});
    forgetPictures();
    pageHasChanged();
    underWay_ = false;
}

std::string QtPrinter::finishedPdf() {
    flush();
    bool ended = false;
    QByteArray pdf;
    beside(platform_, [&] {
        ended = painter_.end();
        writer_.reset();
        pdf = buffer_.data();
        if (ended) setExactPageSize(pdf, pageSize_);
    });
    if (!ended) throw Failure{failure::DeviceIO, "The document cannot be finished."};
    return pdf.toStdString();
}

std::string QtPrinter::EndDoc() {
    if (!painter_.isActive() || abandoned_) {
        drop();
        return {};
    }
    const Short code = PaperSize(), orientation = Orientation();
    const std::string pdf = finishedPdf();
    drop();
    if (queue_.isEmpty()) {
        const std::string path = document_.path + ".pdf";
        beside(platform_, [&] { platform_.files->replace(path, pdf); });
        return "Saved as " + path;
    }
    const std::optional<PrinterPaper> known = paper(code, orientation);
    const CupsJob job{queue_.toUtf8(), toQString(document_.title).toUtf8(),
                      known ? known->media : QByteArray()};
    beside(platform_, [&] { submitToCups(job, pdf); });
    return {};
}

// ---- The list

// Shared with the thread that reads, which may outlive this object.
struct QtPrinters::Reading {
    QStringList names;
    QString usual;  // the system's default printer
    std::atomic<bool> done = false;
};

QtPrinters::QtPrinters(const Platform& platform) : printer_(platform) {
    QObject::connect(&poll_, &QTimer::timeout, [this] { take(); });
}

void QtPrinters::refresh() {
    if (reading_) return;
    reading_ = std::make_shared<Reading>();
    std::thread([reading = reading_] {
        reading->names = QPrinterInfo::availablePrinterNames();
        reading->usual = QPrinterInfo::defaultPrinterName();
        reading->done = true;
    }).detach();
    poll_.start(PollMilliseconds);
}

void QtPrinters::take() {
    if (!reading_ || !reading_->done || printer_.isUnderWay()) return;
    poll_.stop();
    const std::shared_ptr<Reading> read = std::exchange(reading_, nullptr);
    const bool same = read->names == names_;
    names_ = read->names;
    if (!chosen_ && !read->usual.isEmpty()) choose(fromQString(read->usual));
    if (same) return;
    if (changed) changed();
    if (afterChange) afterChange();
}

std::vector<std::string> QtPrinters::list() const {
    std::vector<std::string> result;
    for (const QString& name : names_)
        result.push_back(fromQString(name));
    result.emplace_back(PdfPrinterName);
    return result;
}

bool QtPrinters::choose(std::string_view name) {
    const QString queue = toQString(name);
    const bool isFile = name == PdfPrinterName;
    if (!isFile && !names_.contains(queue)) return false;
    chosen_ = true;
    printer_.use(isFile ? QString() : queue);
    return true;
}

}  // namespace ladrix
