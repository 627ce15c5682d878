// A topic on paper. Measures are twips.
#include <algorithm>

#include "help/HelpCommands.h"

namespace ladrix {

namespace {

constexpr Single LeftEdge = 540, TopEdge = 720, BottomEdge = 720;
constexpr Single Measure = 6.5f * TwipsPerInch;
constexpr Single EntryGap = 0.2f * TwipsPerInch, WidestEntry = 3.5f * TwipsPerInch;
constexpr Single ListIndent = 0.2f * TwipsPerInch;

struct PrintedLine {
    std::string entry;  // at the left edge, on the line of the text
    std::string text;
    Single indent = 0;
};

bool isListItem(std::string_view line) {
    const std::size_t digits = line.find_first_not_of("0123456789");
    return line.starts_with("- ") || (digits != 0 && digits != std::string_view::npos &&
                                      line.substr(digits).starts_with(". "));
}

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    for (std::size_t end = text.find("\r\n"); end != std::string_view::npos;
         end = text.find("\r\n")) {
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end + 2);
    }
    lines.emplace_back(text);
    return lines;
}

// At blanks; a word that is too long for a line has one of its own.
std::vector<std::string> wrapped(Printer& printer, std::string_view text, Single width) {
    std::vector<std::string> lines(1);
    while (!text.empty()) {
        const std::size_t end = std::min(text.size(), text.find(' '));
        const std::string word(text.substr(0, end));
        text.remove_prefix(std::min(text.size(), end + 1));
        std::string& line = lines.back();
        const std::string longer = line.empty() ? word : line + ' ' + word;
        if (line.empty() || printer.TextWidth(longer) <= width)
            line = longer;
        else
            lines.push_back(word);
    }
    return lines;
}

// Of what stands before tabs.
Single entryWidth(Printer& printer, const std::vector<std::string>& lines) {
    Single widest = 0;
    for (const std::string& line : lines)
        if (const std::size_t tab = line.find('\t'); tab != std::string::npos)
            widest = std::max(widest, printer.TextWidth(line.substr(0, tab)));
    return std::min(widest + EntryGap, WidestEntry);
}

// As the window shows them: what follows an entry or an item hangs beside it.
std::vector<PrintedLine> printedLines(Printer& printer, std::string_view body, Single width) {
    std::vector<PrintedLine> printed;
    const std::vector<std::string> lines = linesOf(body);
    const Single entries = entryWidth(printer, lines);
    for (const std::string& line : lines) {
        const std::size_t tab = line.find('\t');
        const bool hasEntry = tab != std::string::npos;
        const Single indent = hasEntry ? entries : isListItem(line) ? ListIndent : 0;
        const std::string_view text = hasEntry ? std::string_view(line).substr(tab + 1) : line;
        const std::size_t first = printed.size();
        for (std::string& part : wrapped(printer, text, width - indent))
            printed.push_back({"", std::move(part), indent});
        if (hasEntry) printed[first].entry = line.substr(0, tab);
        if (!hasEntry) printed[first].indent = 0;
    }
    return printed;
}

void printAt(Printer& printer, Single x, Single y, std::string_view text) {
    printer.CurrentX = x;
    printer.CurrentY = y;
    printer.Print(text);
}

void printLine(Printer& printer, const PrintedLine& line) {
    if (line.entry.empty() && line.text.empty()) {
        printer.CurrentY += 1.5f * printer.TextWidth("");
        return;
    }
    const Single y = printer.CurrentY;
    if (!line.entry.empty()) printAt(printer, LeftEdge, y, line.entry);
    printAt(printer, LeftEdge + line.indent, y, line.text);
}

void printTopic(const HelpForm& help, Printer& printer) {
    printer.SetScaleMode(TwipScale);
    printer.SetFont(help.txtHelp.Font);
    printer.ForeColor = Black;
    printAt(printer, LeftEdge, TopEdge, currentTitle(help));
    printer.Print("");
    printer.Print("");
    const Single width = std::min(Measure, printer.ScaleWidth() - 2 * LeftEdge);
    const std::vector<PrintedLine> lines = printedLines(printer, help.txtHelp.Text, width);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        printLine(printer, lines[i]);
        const bool isFull = printer.CurrentY > printer.ScaleHeight() - BottomEdge;
        if (!isFull || i + 1 == lines.size()) continue;
        printer.NewPage();
        printer.CurrentY = TopEdge;
    }
}

void giveUp(Printer& printer) {
    try {
        printer.Abandon();
        printer.EndDoc();
    } catch (const Failure&) {
        // The failure that made us give up is the one to tell.
    }
}

// A name that any file system takes.
std::string fileNameOf(std::string title) {
    for (char& c : title)
        if (!isLegalFileName(std::string_view(&c, 1)) && c != '.') c = '-';
    return title;
}

}  // namespace

void mnuFilePrint_Click(HelpForm& help) {
    Printer& printer = help.platform.printers->current();
    const std::string title = currentTitle(help);
    bool underWay = false;
    try {
        if (!printer.StartDoc({title, help.PrintFolder + fileNameOf(title)})) return;
        underWay = true;
        const Short scale = printer.ScaleMode();
        printTopic(help, printer);
        printer.SetScaleMode(scale);
        const std::string saved = printer.EndDoc();
        if (!saved.empty()) help.platform.tell(saved, help.Caption);
    } catch (const Failure& failure) {
        if (underWay) giveUp(printer);
        help.platform.tell(failure.text, "Printer Error");
    }
}

}  // namespace ladrix
