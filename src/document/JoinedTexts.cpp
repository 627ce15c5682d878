#include "document/JoinedTexts.h"

#include <algorithm>
#include <optional>

#include "document/RecordLines.h"

namespace ladrix {

namespace {

enum class Kind { Devices, Labels };

// The oldest labels have no more fields, and no font: one of no name and no size.
constexpr int OldLabelFields = 4;
constexpr std::string_view NoFont =
    "\xFF\xFF"
    "0\xFF"
    "False\xFF"
    "False";

struct Form {
    std::string_view separator;
    char mark = 0;  // the one decimal mark that the first line shows; 0: none, or both
};

std::optional<Form> formOf(std::string_view text) {
    const auto separator = separatorOf(text);
    if (!separator) return std::nullopt;
    Form form{*separator};
    const auto first = Lines(text).next();
    if (!first) return form;
    const bool point = hasDecimal(*first, *separator, '.'),
               comma = hasDecimal(*first, *separator, ',');
    if (point != comma) form.mark = point ? '.' : ',';
    return form;
}

bool sameForm(const Form& a, const Form& b) {
    return a.separator == b.separator && (a.mark == b.mark || a.mark == 0 || b.mark == 0);
}

void appendField(std::string& out, std::string_view field, char mark) {
    const std::size_t start = out.size();
    out += field;
    if (mark == 0) return;
    const char other = mark == '.' ? ',' : '.';
    std::replace(out.begin() + static_cast<std::ptrdiff_t>(start), out.end(), other, mark);
}

// One line in the present form; with a `mark`, the other one becomes it behind the first field.
void appendLine(std::string& out, std::string_view line, const Form& form, char mark, Kind kind) {
    const bool noFont = kind == Kind::Labels && form.separator == OldSeparator && !line.empty();
    Fields fields(line, form.separator);
    bool more = fields.hasMore();
    out += fields.next();
    for (int taken = 1; more && !(noFont && taken == OldLabelFields); ++taken) {
        more = fields.hasMore();
        out += FieldSeparator;
        appendField(out, fields.next(), mark);
    }
    if (noFont) out += NoFont;
    out += LineEnd;
}

std::string inPresentForm(std::string_view text, const Form& form, char mark, Kind kind) {
    std::string out;
    out.reserve(text.size());
    Lines lines(text);
    while (const auto line = lines.next())
        appendLine(out, *line, form, mark, kind);
    return out;
}

std::string_view wholeLines(std::string_view text) {
    const std::size_t lastEnd = text.rfind(LineEnd);
    return lastEnd == std::string_view::npos ? std::string_view{}
                                             : text.substr(0, lastEnd + LineEnd.size());
}

std::string joined(std::string_view front, std::string_view back, Kind kind) {
    front = wholeLines(front);
    const auto frontForm = formOf(front), backForm = formOf(back);
    if (back.empty()) return std::string(front);
    if (!frontForm) return std::string(back);
    if (!backForm || sameForm(*frontForm, *backForm)) return std::string(front).append(back);
    const bool otherMark = frontForm->mark != 0 && backForm->mark != 0;
    return inPresentForm(front, *frontForm, 0, kind) +
           inPresentForm(back, *backForm, otherMark ? frontForm->mark : char{0}, kind);
}

// A text of devices that is a line end alone is an empty one.
std::string_view devicesIn(std::string_view text) {
    return text == LineEnd ? std::string_view{} : text;
}

}  // namespace

std::string joinedDevices(std::string_view front, std::string_view back) {
    return joined(devicesIn(front), devicesIn(back), Kind::Devices);
}

std::string joinedLabels(std::string_view front, std::string_view back) {
    return joined(front, back, Kind::Labels);
}

}  // namespace ladrix
