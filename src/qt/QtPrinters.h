// The machine's printers, and "PDF file" after them. Every document is made as a PDF in memory; it
// leaves as a whole, to the printing system or through the checked replacement of a file, or not at
// all.
#pragma once

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "platform/Platform.h"
#include "qt/PrinterPage.h"

namespace ladrix {

// A paper that a printer takes.
struct PrinterPaper {
    QByteArray media;  // the printer's own name for it
    PaperArea area;
};

class QtPrinter final : public PrinterPage {
  public:
    explicit QtPrinter(const Platform& platform)
        : PrinterPage(Medium::Vector), platform_(platform) {}
    ~QtPrinter() override { drop(); }

    // "": the PDF file.
    void use(const QString& queue);

    // From StartDoc to EndDoc. A second document cannot begin meanwhile: StartDoc throws a Failure.
    bool isUnderWay() const { return underWay_; }

    bool StartDoc(const PrintDocument& document) override;
    std::string DeviceName() const override;
    void SetPaperSize(Short code) override;
    void NewPage() override;
    std::string EndDoc() override;
    void Abandon() override { abandoned_ = true; }

    // The paper as it would be for this code and orientation, and the whole of it for a PDF of this
    // user scale.
    PaperArea areaFor(Short code, Short orientation, QSizeF userScale) const;

  protected:
    PaperArea area() const override;
    QPainter& begin() override;

  private:
    using PaperKey = std::pair<Short, Short>;  // code and orientation

    std::optional<PrinterPaper> paper(Short code, Short orientation) const;
    std::optional<PrinterPaper> askForPaper(Short code, Short orientation) const;
    std::string finishedPdf();
    void drop();

    const Platform& platform_;
    QString queue_;
    mutable std::map<PaperKey, std::optional<PrinterPaper>> papers_;  // what the queue has told
    PrintDocument document_;
    bool underWay_ = false, abandoned_ = false;
    QBuffer buffer_;
    std::unique_ptr<QPdfWriter> writer_;
    QPainter painter_;
    QSizeF pageSize_;  // of the document under way
};

class QtPrinters final : public Printers {
  public:
    explicit QtPrinters(const Platform& platform);

    std::function<void()> afterChange;  // the windows show the present state

    void refresh() override;
    std::vector<std::string> list() const override;
    QtPrinter& current() override { return printer_; }
    bool choose(std::string_view name) override;

  private:
    struct Reading;
    void take();

    QtPrinter printer_;
    QStringList names_;
    bool chosen_ = false;  // the system's default is not asked for any more
    std::shared_ptr<Reading> reading_;
    QTimer poll_;
};

constexpr std::string_view PdfPrinterName = "PDF file";

}  // namespace ladrix
