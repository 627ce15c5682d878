#include "qt/TextPropsDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>

#include "canvas/gestures/Keys.h"
#include "platform/Numbers.h"
#include "qt/InputFilters.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int Space = 2 * theme::Unit;
constexpr int Margin = 4 * theme::Unit;
constexpr int SampleHeight = 96;
constexpr int FieldWidth = 300;
constexpr QColor Warning{0xB4, 0x23, 0x18};

// Each family in its own face, those without our letters in the dialog's. Only rows that are seen
// load their font.
class FaceDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {option.rect.width(), option.fontMetrics.height() + 2 * theme::Unit};
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const QString family = index.data().toString();
        const auto systems = QFontDatabase::writingSystems(family);
        if (systems.contains(QFontDatabase::Latin) && !systems.contains(QFontDatabase::Symbol))
            option->font.setFamily(family);
    }
};

}  // namespace

// The text as it will stand on the page at 100 percent.
class TextSample final : public QWidget {
  public:
    explicit TextSample(QWidget* parent) : QWidget(parent) {
        setObjectName(QStringLiteral("picSample"));
        setFixedHeight(SampleHeight);
    }

    void showText(const QFont& font, const QString& text) {
        setFont(font);
        text_ = text;
        setAccessibleName(tr("Sample: %1").arg(text));
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.setPen(theme::Hairline);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.setClipRect(rect().adjusted(1, 1, -1, -1));
        painter.setPen(theme::Text);
        painter.setFont(font());
        const int room = width() - 2 * Space;
        const bool fits = painter.fontMetrics().horizontalAdvance(text_) <= room;
        const int side = fits ? Qt::AlignHCenter : Qt::AlignLeft;
        painter.drawText(rect().adjusted(Space, 0, -Space, 0), Qt::AlignVCenter | side, text_);
    }

  private:
    QString text_;
};

template <class Handler>
void TextPropsDialog::handle(const Handler& handler) {
    handler();
    showState();
    if (!form_.Visible) done(0);
}

TextPropsDialog::TextPropsDialog(Program& program, QWidget* parent)
    : QDialog(parent), program_(program), form_(program.frmTextProps) {
    setObjectName(QStringLiteral("frmTextProps"));
    setWindowTitle(toQString(form_.Caption));
    txtCaption_ = new QLineEdit(this);
    txtCaption_->setObjectName(QStringLiteral("txtCaption"));
    txtCaption_->setMinimumWidth(FieldWidth);
    captionLabel_ = new QLabel(tr("&Text"), this);
    captionLabel_->setBuddy(txtCaption_);
    sample_ = new TextSample(this);
    lblNote_ = new QLabel(this);
    lblNote_->setObjectName(QStringLiteral("lblNote"));
    lblNote_->setTextFormat(Qt::PlainText);
    lblNote_->setWordWrap(true);
    QPalette palette = lblNote_->palette();
    palette.setColor(QPalette::WindowText, Warning);
    lblNote_->setPalette(palette);

    auto* const fields = new QFormLayout;
    fields->setHorizontalSpacing(3 * theme::Unit);
    fields->setVerticalSpacing(Space);
    fields->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    fields->addRow(captionLabel_, txtCaption_);
    fields->addRow(tr("&Font"), makeFonts());
    fields->addRow(tr("&Size"), makeSizes());
    fields->addRow(QString(), makeStyles());

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(3 * theme::Unit);
    layout->addLayout(fields);
    layout->addWidget(sample_);
    layout->addWidget(lblNote_);
    layout->addWidget(makeButtons());
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connectControls();
}

QComboBox* TextPropsDialog::makeFonts() {
    cmbFonts_ = new QComboBox(this);
    cmbFonts_->setObjectName(QStringLiteral("cmbFonts"));
    cmbFonts_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cmbFonts_->setMinimumContentsLength(20);
    cmbFonts_->setMinimumWidth(FieldWidth);
    cmbFonts_->setMaxVisibleItems(14);
    auto* const list = new QListView(cmbFonts_);
    list->setUniformItemSizes(true);
    cmbFonts_->setView(list);
    cmbFonts_->setItemDelegate(new FaceDelegate(cmbFonts_));
    return cmbFonts_;
}

QComboBox* TextPropsDialog::makeSizes() {
    cmbFontSize_ = new QComboBox(this);
    cmbFontSize_->setObjectName(QStringLiteral("cmbFontSize"));
    cmbFontSize_->setEditable(true);
    cmbFontSize_->setCompleter(nullptr);
    cmbFontSize_->setInsertPolicy(QComboBox::NoInsert);
    cmbFontSize_->setFixedWidth(96);
    cmbFontSize_->setToolTip(tr("Points, from 1 to 400"));
    return cmbFontSize_;
}

QWidget* TextPropsDialog::makeStyles() {
    auto* const row = new QWidget(this);
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2 * Margin);
    const QString captions[] = {tr("&Bold"), tr("&Italic")};
    for (int i = 0; i < 2; ++i) {
        chkFontStyle_[i] = new QCheckBox(captions[i], row);
        chkFontStyle_[i]->setObjectName(QStringLiteral("chkFontStyle%1").arg(i));
        layout->addWidget(chkFontStyle_[i]);
    }
    layout->addStretch(1);
    return row;
}

QWidget* TextPropsDialog::makeButtons() {
    auto* const row = new QWidget(this);
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Space);
    const auto add = [&](const char* name, const QString& caption, const QString& tip,
                         auto handler) {
        auto* const button = new QPushButton(caption, row);
        button->setObjectName(QString::fromLatin1(name));
        button->setAutoDefault(false);
        button->setToolTip(tip);
        button->setMinimumWidth(button->fontMetrics().horizontalAdvance(caption) + 6 * Space);
        connect(button, &QPushButton::clicked, this, [this, handler] { handle(handler); });
        layout->addWidget(button);
        return button;
    };
    add("cmdSet", tr("&Make Default"), tr("Use this font for new labels"),
        [this] { cmdSet_Click(form_, program_.editor); });
    layout->addStretch(1);
    add("cmdOKTextProps", tr("&Apply"), {}, [this] {
        cmdOKTextProps_Click(form_, program_.editor);
    })->setDefault(true);
    add("cmdCancel", tr("Cancel"), {}, [this] { frmTextProps_Cancel(form_); });
    return row;
}

void TextPropsDialog::connectControls() {
    auto* const filter = new RecordTextFilter(txtCaption_);
    txtCaption_->setValidator(filter);
    connect(
        filter, &RecordTextFilter::refused, this,
        [this] { handle([this] { txtCaption_Refused(form_); }); }, Qt::QueuedConnection);
    connect(txtCaption_, &QLineEdit::textEdited, this, [this](const QString& text) {
        handle([&] { txtCaption_Change(form_, fromQString(text)); });
    });
    connect(cmbFonts_, &QComboBox::activated, this, [this] {
        form_.cmbFonts.Text = fromQString(cmbFonts_->currentText());
        handle([this] { cmbFonts_Click(form_, program_.editor); });
    });
    connect(cmbFontSize_, &QComboBox::editTextChanged, this, [this](const QString& text) {
        handle([&] { cmbFontSize_Change(form_, fromQString(text)); });
    });
    for (std::size_t i = 0; i < form_.chkFontStyle.size(); ++i)
        connect(chkFontStyle_[i], &QCheckBox::toggled, this, [this, i](bool checked) {
            handle([&] { form_.chkFontStyle[i].Value = checked; });
        });
}

int TextPropsDialog::run() {
    cmbFonts_->addItems(toQStringList(form_.cmbFonts.List));
    showState();
    if (form_.txtCaption.Visible)
        txtCaption_->setFocus();
    else
        cmbFonts_->setFocus();
    return exec();
}

void TextPropsDialog::showSizes() {
    const QSignalBlocker quiet(cmbFontSize_);
    const QStringList items = toQStringList(form_.cmbFontSize.List);
    if (cmbFontSize_->count() != items.size()) {
        cmbFontSize_->clear();
        cmbFontSize_->addItems(items);
    }
    const QString text = toQString(form_.cmbFontSize.Text);
    if (cmbFontSize_->currentText() != text) cmbFontSize_->setEditText(text);
}

void TextPropsDialog::showState() {
    captionLabel_->setVisible(form_.txtCaption.Visible);
    txtCaption_->setVisible(form_.txtCaption.Visible);
    const QString caption = toQString(form_.txtCaption.Text);
    if (txtCaption_->text() != caption) txtCaption_->setText(caption);
    if (std::exchange(marked_, form_.txtCaption.SelectAllRequests) !=
        form_.txtCaption.SelectAllRequests)
        txtCaption_->selectAll();
    const QString family = toQString(form_.cmbFonts.Text);
    cmbFonts_->setCurrentIndex(cmbFonts_->findText(family, Qt::MatchExactly));
    showSizes();
    for (std::size_t i = 0; i < form_.chkFontStyle.size(); ++i)
        chkFontStyle_[i]->setChecked(form_.chkFontStyle[i].Value);
    lblNote_->setText(toQString(form_.lblNote.Caption));
    lblNote_->setVisible(!form_.lblNote.Caption.empty());

    QFont font(family);
    const Single size = typedNumber(form_.cmbFontSize.Text).value_or(0);
    const Single shown = std::clamp(size, SmallestFontSize, LargestFontSize);
    font.setPixelSize(std::min(qRound(shown * 96 / 72), 2 * SampleHeight));
    font.setBold(form_.chkFontStyle[0].Value);
    font.setItalic(form_.chkFontStyle[1].Value);
    const QString text = caption.isEmpty() ? QStringLiteral("AaBbCc 1234567890") : caption;
    sample_->showText(font, shown == size ? text : QString());
}

void TextPropsDialog::reject() {
    frmTextProps_Cancel(form_);
    done(0);
}

}  // namespace ladrix
