#include "qt/HelpText.h"

#include <QRegularExpression>
#include <QScrollBar>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <algorithm>

#include "qt/InputFilters.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int MeasureInCharacters = 84;  // a line's length that is easy to read
constexpr int GapInCharacters = 3;       // between an entry and what it means

bool isHeading(const QString& line) {
    static const QRegularExpression letters(QStringLiteral("[A-Z]{2}"));
    return !line.contains(u'\t') && line == line.toUpper() && line.contains(letters);
}

// What stands in front of a list's item; "" if the line is none.
QString bulletOf(const QString& line) {
    static const QRegularExpression bullet(QStringLiteral("^(- |[0-9]{1,2}\\. )"));
    return bullet.match(line).captured();
}

// Headings as they are typed, without a trace in the text or its undo steps.
class Headings final : public QSyntaxHighlighter {
  public:
    using QSyntaxHighlighter::QSyntaxHighlighter;

  protected:
    void highlightBlock(const QString& line) override {
        QTextCharFormat format;
        if (isHeading(line)) {
            format.setFontWeight(QFont::DemiBold);
            format.setForeground(theme::Accent.darker(125));
            setFormat(0, static_cast<int>(line.size()), format);
        } else if (const qsizetype tab = line.indexOf(u'\t'); tab > 0) {
            format.setFontWeight(QFont::DemiBold);
            setFormat(0, static_cast<int>(tab), format);
        }
    }
};

int positionOf(const HelpTextBox& state, std::size_t byte) {
    return static_cast<int>(boxText(std::string_view(state.Text).substr(0, byte)).size());
}

}  // namespace

HelpText::HelpText(QWidget* parent) : QTextEdit(parent) {
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(0);
    new Headings(document());
    connect(this, &QTextEdit::textChanged, this, [this] {
        if (!showing_) emit edited(toPlainText().toStdString());
    });
}

void HelpText::showState(const HelpTextBox& state) {
    showing_ = true;
    QFont font(toQString(state.Font.name));
    font.setPointSizeF(static_cast<double>(state.Font.size));
    document()->setDefaultFont(font);
    fitLines();
    setReadOnly(!state.Enabled);
    setPlainText(boxText(state.Text));
    formatBlocks();
    QTextCursor cursor = textCursor();
    cursor.setPosition(positionOf(state, state.SelStart));
    cursor.setPosition(positionOf(state, state.SelStart + state.SelLength),
                       QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    if (state.SelLength == 0) verticalScrollBar()->setValue(0);
    showing_ = false;
}

void HelpText::correct(const HelpTextBox& state) {
    const QString held = boxText(state.Text);
    if (held == toPlainText()) return;
    showing_ = true;
    setTextCursor(showHeld(textCursor(), held));
    showing_ = false;
}

// Wide enough for the longest entry; half a line at most.
double HelpText::entryWidth() const {
    QFont bold = document()->defaultFont();
    bold.setWeight(QFont::DemiBold);
    const QFontMetricsF metrics(bold);
    double widest = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        if (const qsizetype tab = block.text().indexOf(u'\t'); tab > 0)
            widest = std::max(widest, metrics.horizontalAdvance(block.text().left(tab)));
    const double character = metrics.averageCharWidth();
    return std::min(widest + GapInCharacters * character, MeasureInCharacters * character / 2);
}

// Entries and items hang in front of what they say. Not a step that can be undone.
void HelpText::formatBlocks() {
    document()->setUndoRedoEnabled(false);
    const QFontMetricsF metrics(document()->defaultFont());
    setTabStopDistance(entryWidth());
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const bool isEntry = block.text().contains(u'\t');
        const double hang =
            isEntry ? tabStopDistance() : metrics.horizontalAdvance(bulletOf(block.text()));
        QTextBlockFormat format;
        format.setLineHeight(125, QTextBlockFormat::ProportionalHeight);
        format.setLeftMargin(hang);
        format.setTextIndent(-hang);
        QTextCursor(block).setBlockFormat(format);
    }
    document()->setUndoRedoEnabled(true);
}

// Lines grow no longer than is easy to read.
void HelpText::fitLines() {
    const double character = QFontMetricsF(document()->defaultFont()).averageCharWidth();
    const int measure = static_cast<int>(MeasureInCharacters * character);
    setLineWrapMode(QTextEdit::FixedPixelWidth);
    setLineWrapColumnOrWidth(std::min(measure, viewport()->width()));
}

void HelpText::resizeEvent(QResizeEvent* event) {
    fitLines();
    QTextEdit::resizeEvent(event);
}

}  // namespace ladrix
