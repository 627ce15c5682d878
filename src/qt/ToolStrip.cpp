#include "qt/ToolStrip.h"

#include <QFocusEvent>
#include <QPainter>

#include "canvas/gestures/Gesture.h"
#include "canvas/gestures/Keys.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/labels/Labels.h"
#include "canvas/tools/Colors.h"
#include "canvas/tools/LineWidth.h"
#include "canvas/tools/RadiusFields.h"
#include "canvas/tools/ScaleBox.h"
#include "canvas/view/Snap.h"
#include "canvas/view/Zoom.h"
#include "qt/InputFilters.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int StripHeight = theme::ControlHeight + 3 * theme::Unit;
constexpr int NumberFieldWidth = 54;
constexpr int TextFieldWidth = 360;

void addDivider(QBoxLayout& row) {
    auto* line = new QFrame;
    line->setFrameShape(QFrame::VLine);
    line->setFixedHeight(theme::ControlHeight - 2 * theme::Unit);
    QPalette palette = line->palette();
    palette.setColor(QPalette::WindowText, theme::Hairline);
    line->setPalette(palette);
    row.addWidget(line);
}

QBoxLayout* panelLayout(QWidget& panel) {
    auto* layout = new QHBoxLayout(&panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::Unit);
    return layout;
}

// The field has left the focus to another window, a menu or a pop-up: it will be back.
bool comesBack(const QFocusEvent& event) {
    return event.reason() == Qt::ActiveWindowFocusReason ||
           event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason;
}

}  // namespace

ToolStrip::ToolStrip(Program& program, QWidget* parent) : QWidget(parent), program_(program) {
    setObjectName("picTop");
    setFixedHeight(StripHeight);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(2 * theme::Unit, 0, 2 * theme::Unit, 1);
    row->setSpacing(theme::Unit);
    makeColors(*row);
    addDivider(*row);
    makeWidths(*row);
    addDivider(*row);
    makeScale(*row);
    addDivider(*row);
    makeSnapAndZoom(*row);
    addDivider(*row);
    makeReset(*row);
    row->addSpacing(2 * theme::Unit);
    makeRadiusPanel(*row);
    makeTextPanel(*row);
    row->addStretch(1);
}

void ToolStrip::run(Handler handler) {
    handler(program_.editor);
    emit handled();
}

QToolButton* ToolStrip::makeButton(const char* name, const Control& state, Handler handler,
                                   Look look, const QString& textOrIcon, const QString& tip) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setFocusPolicy(Qt::TabFocus);
    button->setFixedHeight(theme::ControlHeight);
    if (look == Look::Icon) {
        button->setIcon(theme::icon(textOrIcon.toLatin1().constData()));
        button->setAutoRaise(true);
        button->setFixedWidth(theme::ControlHeight);
    } else {
        button->setText(textOrIcon);
    }
    bindings_.add(*button, state,
                  handler ? Bindings::Handler::Present : Bindings::Handler::Missing);
    if (handler) connect(button, &QToolButton::clicked, this, [this, handler] { run(handler); });
    return button;
}

QLabel* ToolStrip::makeLabel(const char* name, const Control& state, const QString& text) {
    auto* label = new QLabel(text, this);
    label->setObjectName(name);
    label->setForegroundRole(QPalette::PlaceholderText);
    bindings_.add(*label, state);
    return label;
}

void ToolStrip::makeColors(QBoxLayout& row) {
    const FormLX& form = program_.editor.form;
    auto* swatch = new ColorSwatch(this);
    swatch->setObjectName("picSelectedColor");
    swatch->setToolTip(tr("Colour of new items"));
    bindings_.add(*swatch, form.picSelectedColor);
    connect(swatch, &ColorSwatch::clicked, this, [this] { run(&picSelectedColor_Click); });
    QToolButton* drop = makeButton("cmdColors", form.cmdColors, &cmdColors_Click, Look::Icon,
                                   "colours", tr("Choose a colour"));
    picColors_ = new ColorPanel(program_, drop);
    connect(picColors_, &ColorPanel::handled, this, &ToolStrip::handled);
    connect(picColors_, &ColorPanel::escapePressed, this, &ToolStrip::escapePressed);
    row.addWidget(swatch);
    row.addWidget(drop);
}

void ToolStrip::makeWidths(QBoxLayout& row) {
    const FormLX& form = program_.editor.form;
    QToolButton* thin = makeButton(
        "cmdDrawWidth1", form.cmdDrawWidth[1],
        [](Editor& editor) { cmdDrawWidth_Click(editor, 1); }, Look::Icon, "width-thin",
        tr("Thin lines"));
    QToolButton* thick = makeButton(
        "cmdDrawWidth0", form.cmdDrawWidth[0],
        [](Editor& editor) { cmdDrawWidth_Click(editor, 0); }, Look::Icon, "width-thick",
        tr("Thick lines"));
    row.addWidget(thin);
    row.addWidget(thick);
}

void ToolStrip::makeScale(QBoxLayout& row) {
    FormLX& form = program_.editor.form;
    auto* picScale = new QWidget(this);
    picScale->setObjectName("picScale");
    cmbScale_ = new QComboBox(picScale);
    cmbScale_->setObjectName("cmbScale");
    cmbScale_->setAccessibleName(tr("Scale of new symbols"));
    cmbScale_->setToolTip(tr("Scale of new symbols"));
    cmbScale_->setEditable(true);
    cmbScale_->setCompleter(nullptr);
    cmbScale_->setInsertPolicy(QComboBox::NoInsert);
    cmbScale_->setValidator(new NumberFilter(cmbScale_));
    cmbScale_->setFixedSize(80, theme::ControlHeight);
    cmbScale_->setMaxVisibleItems(12);
    const auto take = [this](Handler handler) {
        program_.editor.form.cmbScale.Text = fromQString(cmbScale_->currentText());
        if (handler) run(handler);
    };
    connect(cmbScale_, &QComboBox::activated, this, [take] { take(&cmbScale_Click); });
    connect(cmbScale_, &QComboBox::editTextChanged, this, [take] { take(nullptr); });
    connect(cmbScale_->lineEdit(), &QLineEdit::returnPressed, this,
            [take] { take(&cmdScaleOK_Click); });
    bindings_.watch(form.cmbScale, [this](const ComboBox& state) { showScaleList(state); });

    QBoxLayout* inside = panelLayout(*picScale);
    inside->addWidget(makeLabel("lblScale", form.lblScale, tr("Scale")));
    inside->addWidget(cmbScale_);
    inside->addWidget(makeButton("cmdScaleOK", form.cmdScaleOK, &cmdScaleOK_Click, Look::Text,
                                 tr("OK"), tr("Use the typed scale")));
    row.addWidget(picScale);
}

void ToolStrip::showScaleList(const ComboBox& state) {
    const QSignalBlocker quiet(cmbScale_);
    cmbScale_->setVisible(state.Visible);
    cmbScale_->setEnabled(state.Enabled);
    const QStringList items = toQStringList(state.List);
    if (cmbScale_->count() != items.size()) {
        cmbScale_->clear();
        cmbScale_->addItems(items);
    }
    const QString text = toQString(state.Text);
    if (cmbScale_->currentText() == text) return;
    cmbScale_->setCurrentIndex(static_cast<int>(items.indexOf(text)));
    cmbScale_->setEditText(text);
}

void ToolStrip::makeSnapAndZoom(QBoxLayout& row) {
    const FormLX& form = program_.editor.form;
    row.addWidget(makeButton("cmdSnapLower", form.cmdSnapLower, &cmdSnapLower_Click, Look::Icon,
                             "snap-finer", tr("Halve the snap pitch (Ctrl+Left)")));
    QToolButton* snap = makeButton("cmdSnap", form.cmdSnap, &cmdSnap_Click, Look::Text, tr("Snap"),
                                   tr("Snap pitch"));
    snap->setMinimumWidth(96);
    snap->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(snap, &QWidget::customContextMenuRequested, this,
            [this] { run([](Editor& editor) { cmdSnap_MouseDown(editor, RightButton); }); });
    row.addWidget(snap);
    row.addWidget(makeButton("cmdSnapHigher", form.cmdSnapHigher, &cmdSnapHigher_Click, Look::Icon,
                             "snap-coarser", tr("Double the snap pitch (Ctrl+Right)")));
    addDivider(row);
    row.addWidget(makeButton("cmdZoomIn", form.cmdZoomIn, &cmdZoomIn_Click, Look::Icon, "zoom-in",
                             tr("Zoom in where you click (at once: Ctrl++)")));
    row.addWidget(makeButton("cmdZoomOut", form.cmdZoomOut, &cmdZoomOut_Click, Look::Icon,
                             "zoom-out", tr("Zoom out where you click (at once: Ctrl+-)")));
}

void ToolStrip::makeReset(QBoxLayout& row) {
    QToolButton* reset = makeButton("cmdReset", program_.editor.form.cmdReset, &cmdReset_Click,
                                    Look::Text, tr("Reset"), tr("End what is under way (Esc)"));
    reset->setIcon(theme::icon("reset"));
    reset->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    row.addWidget(reset);
}

QLineEdit* ToolStrip::makeNumberField(const char* name, TextBox& state, Handler changed,
                                      const QString& tip) {
    auto* field = new QLineEdit(this);
    field->setObjectName(name);
    field->setAccessibleName(tip);
    field->setToolTip(tip);
    field->setFixedSize(NumberFieldWidth, theme::ControlHeight);
    field->setValidator(new NumberFilter(field));
    bindings_.add(*field, state);
    connect(field, &QLineEdit::textEdited, this, [this, &state, changed](const QString& text) {
        state.Text = fromQString(text);
        run(changed);
    });
    return field;
}

void ToolStrip::makeRadiusPanel(QBoxLayout& row) {
    FormLX& form = program_.editor.form;
    auto* picRadius = new QWidget(this);
    picRadius->setObjectName("picRadius");
    QLineEdit* radius =
        makeNumberField("txtRadius", form.txtRadius, &txtRadius_Change, tr("Radius in inches"));
    QLineEdit* start = makeNumberField("txtCircleStart", form.txtCircleStart,
                                       &txtCircleStart_Change, tr("Start angle in degrees"));
    txtCircleEnd_ = makeNumberField("txtCircleEnd", form.txtCircleEnd, &txtCircleEnd_Change,
                                    tr("End angle in degrees"));
    connect(start, &QLineEdit::returnPressed, this,
            [this] { run([](Editor& editor) { txtCircleStart_KeyDown(editor, key::Enter); }); });
    for (const QLineEdit* field : {radius, txtCircleEnd_})
        connect(field, &QLineEdit::returnPressed, this, [this] { run(&cmdCircle_Click); });
    auto* angles = new QWidget(picRadius);
    QBoxLayout* ofAngles = panelLayout(*angles);
    ofAngles->addWidget(makeLabel("lblCircle1", form.lblCircle[1], tr("Start")));
    ofAngles->addWidget(start);
    ofAngles->addWidget(makeLabel("lblCircle2", form.lblCircle[2], tr("End")));
    ofAngles->addWidget(txtCircleEnd_);
    QBoxLayout* inside = panelLayout(*picRadius);
    inside->addWidget(makeLabel("lblCircle0", form.lblCircle[0], tr("Radius")));
    inside->addWidget(radius);
    inside->addWidget(angles);
    inside->addWidget(makeButton("cmdCircle", form.cmdCircle, &cmdCircle_Click, Look::Text,
                                 tr("Apply"), tr("Apply to the selected circles and arcs")));
    bindings_.addPanel(*picRadius, form.picRadius);
    bindings_.watch(form.RadiusPanelWide, [angles](bool wide) { angles->setVisible(wide); });
    row.addWidget(picRadius);
}

void ToolStrip::makeTextPanel(QBoxLayout& row) {
    FormLX& form = program_.editor.form;
    auto* picText = new QWidget(this);
    picText->setObjectName("picText");
    txtEdit_ = new QLineEdit(this);
    txtEdit_->setObjectName("txtEdit");
    txtEdit_->setAccessibleName(tr("Text of the label"));
    txtEdit_->setFixedHeight(theme::ControlHeight);
    txtEdit_->setMinimumWidth(120);
    txtEdit_->setTextMargins(theme::Unit, 0, theme::Unit, 0);
    txtEdit_->setMaximumWidth(TextFieldWidth);
    auto* filter = new RecordTextFilter(txtEdit_);
    connect(
        filter, &RecordTextFilter::refused, this, [this] { run(&txtEdit_Refused); },
        Qt::QueuedConnection);  // after the change that the rest of the typing makes
    txtEdit_->setValidator(filter);
    txtEdit_->installEventFilter(this);
    bindings_.add(*txtEdit_, form.txtEdit);
    connect(txtEdit_, &QLineEdit::textEdited, this, [this](const QString& text) {
        program_.editor.form.txtEdit.Text = fromQString(text);
        run(&txtEdit_Change);
    });
    connect(txtEdit_, &QLineEdit::returnPressed, this, [this] { run(&txtEdit_EnterPressed); });
    auto* caption = new QLabel(tr("Text"), this);
    caption->setForegroundRole(QPalette::PlaceholderText);
    QBoxLayout* inside = panelLayout(*picText);
    caption->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    inside->addWidget(caption);
    inside->addWidget(txtEdit_, 100);
    inside->addStretch(1);
    bindings_.addPanel(*picText, form.picText);
    row.addWidget(picText, 100);
}

bool ToolStrip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn && !comesBack(*static_cast<QFocusEvent*>(event)))
        run(&txtEdit_GotFocus);
    if (event->type() == QEvent::FocusOut && !comesBack(*static_cast<QFocusEvent*>(event)))
        run(&txtEdit_LostFocus);
    return QWidget::eventFilter(watched, event);
}

void ToolStrip::refresh() {
    bindings_.refresh();
    picColors_->refresh();
}

void ToolStrip::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), theme::Chrome);
    painter.fillRect(0, height() - 1, width(), 1, theme::Hairline);
}

}  // namespace ladrix
