#include "qt/CanvasWidget.h"

#include <QGuiApplication>
#include <QPaintEvent>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <cmath>

#include "canvas/gestures/PictureEvents.h"
#include "canvas/gestures/Pointer.h"
#include "canvas/gestures/Selection.h"
#include "canvas/labels/LabelEvents.h"
#include "canvas/view/View.h"
#include "canvas/view/Zoom.h"
#include "qt/KeyCodes.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr double PixelsPerNotch = 96;  // an inch of the screen
constexpr int OverlayRoom = 2;         // logical pixels that an overlay's pen takes around it
constexpr QColor CrossHair{0x7D, 0x93, 0xB2};
constexpr QColor Tick{0x9C, 0xA8, 0xB8};

// What a length of the frame leaves for the page between its margins.
Single innerTwips(int pixels) {
    return static_cast<Single>(std::max(1, pixels - 2 * QtCanvas::Margin)) * TwipsPerPixel;
}

void showBar(QScrollBar& bar, ScrollBar& shown, const ScrollBar& state) {
    if (shown == state) return;
    shown = state;
    const QSignalBlocker quiet(bar);
    bar.setVisible(state.Visible);
    bar.setRange(0, state.Max);
    bar.setPageStep(state.LargeChange);
    bar.setSingleStep(state.SmallChange);
    bar.setValue(state.Value);
}

}  // namespace

CanvasWidget::CanvasWidget(Program& program, QtCanvas& canvas, QWidget* parent)
    : QWidget(parent), program_(program), canvas_(canvas) {
    setObjectName("picLX");
    setAccessibleName(tr("Drawing"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(120, 120);
}

void CanvasWidget::refresh() {
    const PointerState& now = program_.editor.form.pointer;
    if (shown_ != now) {
        updateOverlay(shown_.LineV, now.LineV);
        updateOverlay(shown_.LineH, now.LineH);
        updateOverlay(shown_.shpSelect, now.shpSelect);
        updateOverlay(shown_.shpSelectLight, now.shpSelectLight);
        updateOverlay(shown_.picGrip, now.picGrip);
    }
    const bool pointerChanged = shown_.Pointer != now.Pointer || shownOverLabel_ != overLabel_;
    shown_ = now;
    shownOverLabel_ = overLabel_;
    if (pointerChanged && !pan_) showPointer(now.Pointer);
    const FormLX& form = program_.editor.form;
    if (labelVersion_ != form.LabelVersion || pictureVersion_ != form.PictureVersion) {
        labelVersion_ = form.LabelVersion;
        pictureVersion_ = form.PictureVersion;
        update();
    }
    if (const QRegion damage = canvas_.takeDamage(); !damage.isEmpty()) update(damage);
}

// A label takes the press whatever tool is in hand, so the tool's pointer would promise too much.
void CanvasWidget::showPointer(MousePointer pointer) {
    if (overLabel_ == OverLabel::Selected) return setCursor(Qt::SizeAllCursor);
    if (overLabel_ == OverLabel::Unselected) return setCursor(Qt::PointingHandCursor);
    switch (pointer) {
        case MousePointer::Default:
            return unsetCursor();
        case MousePointer::Cross:
            return setCursor(theme::cursor("cursor-cross", 12, 12));
        case MousePointer::ZoomIn:
            return setCursor(theme::cursor("cursor-zoom-in", 10, 10));
        case MousePointer::ZoomOut:
            return setCursor(theme::cursor("cursor-zoom-out", 10, 10));
        case MousePointer::Hand:
            return setCursor(theme::cursor("cursor-hand", 11, 4));
        case MousePointer::SizeWidth:
            return setCursor(Qt::SizeHorCursor);
    }
}

QRect CanvasWidget::pixelRect(const Overlay& overlay) const {
    return QRectF(canvas_.toPixels(overlay.Left, overlay.Top),
                  QSizeF(overlay.Width, overlay.Height) * canvas_.scale())
        .toAlignedRect();
}

void CanvasWidget::updateOverlay(const Overlay& before, const Overlay& now) {
    if (before == now) return;
    const auto damage = [this](const Overlay& overlay) {
        if (overlay.Visible)
            update(
                pixelRect(overlay).adjusted(-OverlayRoom, -OverlayRoom, OverlayRoom, OverlayRoom));
    };
    damage(before);
    damage(now);
}

// The frame's inner size that the core sees leaves the margin out on both sides: at the ends of the
// scroll bars the page stands off from the frame by it.
void CanvasWidget::fitViewport() {
    canvas_.resize(size(), devicePixelRatioF());
    Form_Resize(program_.editor, innerTwips(width()), innerTwips(height()));
    loaded_ = true;
    emit handled();
}

void CanvasWidget::resizeEvent(QResizeEvent*) {
    fitViewport();
}

void CanvasWidget::paintEvent(QPaintEvent* event) {
    if (loaded_ && canvas_.persistentLayer().devicePixelRatio() != devicePixelRatioF())
        fitViewport();
    QPainter painter(this);
    painter.drawImage(QPointF(0, 0), canvas_.persistentLayer());
    const QRect clip = event->rect();
    canvas_.paintTemporaryLayer(painter, clip);
    paintLabels(painter, clip);
    paintEmptyLabels(painter);
    painter.setRenderHint(QPainter::Antialiasing, false);
    paintPictureMarks(painter);
    paintCrossHair(painter);
    paintBand(painter);
    paintGrip(painter);
}

// A label's size is the fitted one for the zoom; the page scales by the zoom itself.
void CanvasWidget::paintLabels(QPainter& painter, const QRect& clip) {
    const FormLX& form = program_.editor.form;
    if (form.lbl.empty()) return;
    painter.save();
    labels_.reset(&painter, canvas_.viewFor(clip));
    const Single zoom = program_.editor.ZoomFactor;
    FontSpec onPaper;
    for (const LabelControl& label : form.lbl) {
        if (!label.Visible) continue;
        const double points = label.Font.size / zoom;
        const QRectF bounds =
            canvas_.textBounds(label.Left, label.Top, points, label.Caption.size());
        if (!bounds.intersects(clip)) continue;
        onPaper = label.Font;
        onPaper.size = static_cast<Single>(points);
        labels_.Text(label.Left, label.Top, onPaper, label.Caption, canvas_.ink(label.ForeColor));
    }
    labels_.flush();
    painter.restore();
}

// In its own faint colour whatever the label's, which may be the page's.
void CanvasWidget::paintEmptyLabels(QPainter& painter) const {
    const Editor& editor = program_.editor;
    if (editor.SimulationMode) return;
    const Single side = EmptyLabelTick / editor.ZoomFactor;
    for (const LabelControl& label : editor.form.lbl) {
        if (!label.Visible || !label.Caption.empty()) continue;
        const bool selected = label.ForeColor == editor.SelectionColor;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(selected ? theme::color(label.ForeColor) : Tick, 1));
        painter.drawLine(canvas_.toPixels(label.Left, label.Top + side),
                         canvas_.toPixels(label.Left + side, label.Top));
    }
}

void CanvasWidget::paintPictureMarks(QPainter& painter) const {
    const Editor& editor = program_.editor;
    for (const PictureRow& row : editor.drawing.PictureTable) {
        if (!row.Selected) continue;
        painter.setPen(QPen(theme::color(editor.SelectionColor), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(pixelRect({true, row.Left, row.Top, row.Width, row.Height}));
    }
}

void CanvasWidget::paintCrossHair(QPainter& painter) const {
    const auto line = [&](const Overlay& overlay) {
        if (!overlay.Visible) return;
        painter.setPen(QPen(CrossHair, 0));
        painter.drawLine(
            canvas_.toPixels(overlay.Left, overlay.Top),
            canvas_.toPixels(overlay.Left + overlay.Width, overlay.Top + overlay.Height));
    };
    line(shown_.LineV);
    line(shown_.LineH);
}

void CanvasWidget::paintBand(QPainter& painter) const {
    const auto band = [&](const Overlay& overlay, QColor color) {
        if (!overlay.Visible) return;
        const QRect rect = pixelRect(overlay);
        painter.setPen(QPen(color, 1));
        color.setAlpha(36);
        painter.setBrush(color);
        painter.drawRect(rect.adjusted(0, 0, -1, -1));
    };
    band(shown_.shpSelect, theme::Accent);
    band(shown_.shpSelectLight, QColor(0xD6, 0xE4, 0xFF));
}

void CanvasWidget::paintGrip(QPainter& painter) const {
    if (!shown_.picGrip.Visible) return;
    painter.setPen(QPen(theme::Accent, 1));
    painter.setBrush(Qt::white);
    painter.drawRect(pixelRect(shown_.picGrip).adjusted(0, 0, -1, -1));
}

CanvasWidget::Target CanvasWidget::targetAt(QPointF at) const {
    const Editor& editor = program_.editor;
    const Overlay& grip = editor.form.pointer.picGrip;
    if (grip.Visible && pixelRect(grip).contains(at.toPoint())) return Target::Grip;
    if (labelUnder(at)) return Target::Label;
    return pictureAt(editor, canvas_.inchesX(at.x()), canvas_.inchesY(at.y())) ? Target::Picture
                                                                               : Target::Canvas;
}

std::optional<Short> CanvasWidget::labelUnder(QPointF at) const {
    return labelAt(program_.editor, canvas_.inchesX(at.x()), canvas_.inchesY(at.y()));
}

// What the pointer would take with its next press, or has taken.
void CanvasWidget::lookUnder(QPointF at) {
    overLabel_ = OverLabel::No;
    if (targetAt(at) != Target::Label) return;
    const auto label = static_cast<std::size_t>(*labelUnder(at));
    const auto& marks = program_.editor.drawing.labels.LabelSelected;
    overLabel_ =
        label < marks.size() && marks[label] != 0 ? OverLabel::Selected : OverLabel::Unselected;
}

void CanvasWidget::press(const QMouseEvent& event) {
    Editor& editor = program_.editor;
    const Short button = classicButton(event.button());
    const Single x = canvas_.inchesX(event.position().x());
    const Single y = canvas_.inchesY(event.position().y());
    pressed_ = targetAt(event.position());
    if (pressed_ == Target::Grip) return picGrip_MouseDown(editor, button);
    if (pressed_ == Target::Label) {
        pressedLabel_ = *labelUnder(event.position());
        return lbl_MouseDown(editor, pressedLabel_, button, x, y);
    }
    if (pressed_ == Target::Picture)
        return img_MouseDown(editor, *pictureAt(editor, x, y), button, x, y);
    picLX_MouseDown(editor, button, classicShift(event.modifiers()), x, y);
}

void CanvasWidget::release(const QMouseEvent& event) {
    Editor& editor = program_.editor;
    const bool left = event.button() == Qt::LeftButton;
    if (pressed_ == Target::Grip) {
        if (left && targetAt(event.position()) == Target::Grip) picGrip_Click(editor);
        return;
    }
    if (pressed_ == Target::Label) {
        if (left && lbl_MouseUp(editor)) lbl_Click(editor, pressedLabel_);
        return;
    }
    if (pressed_ == Target::Picture && left) return img_MouseUp(editor);
    picLX_MouseUp(editor, classicButton(event.button()), classicShift(event.modifiers()),
                  canvas_.inchesX(event.position().x()), canvas_.inchesY(event.position().y()));
}

// A press acts where it is, whether a move came to there before or not.
void CanvasWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) return startPan(event->position());
    if (pan_ || classicButton(event->button()) == 0) return;
    if (event->buttons() == event->button()) tellPointerAt(event->position());
    press(*event);
    lookUnder(event->position());
    emit handled();
}

void CanvasWidget::tellPointer() {
    toTell_ = !pointer_;
    if (pointer_ && !pan_ && QGuiApplication::mouseButtons() == Qt::NoButton)
        tellPointerAt(*pointer_);
}

void CanvasWidget::tellPointerAt(QPointF at) {
    pointer_ = at;
    picLX_PointerRests(program_.editor, 0, canvas_.inchesX(at.x()), canvas_.inchesY(at.y()));
    lookUnder(at);
}

void CanvasWidget::enterEvent(QEnterEvent* event) {
    pointer_ = event->position();
    if (toTell_) tellPointer();
    emit handled();
}

void CanvasWidget::leaveEvent(QEvent*) {
    pointer_.reset();
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event) {
    if (pan_ && !(event->buttons() & Qt::MiddleButton)) endPan();
    if (pan_)
        pan(event->position());
    else
        movePointer(event->position(), event->buttons(), event->modifiers());
    emit handled();
}

void CanvasWidget::movePointer(QPointF at, Qt::MouseButtons buttons,
                               Qt::KeyboardModifiers modifiers) {
    pointer_ = at;
    const Single x = canvas_.inchesX(at.x());
    const Single y = canvas_.inchesY(at.y());
    const Short held = classicButton(buttons);
    if (held == 0 || pressed_ == Target::Canvas)
        picLX_MouseMove(program_.editor, held, classicShift(modifiers), x, y);
    else if (pressed_ == Target::Label)
        lbl_MouseMove(program_.editor, held, x, y);
    else if (pressed_ == Target::Picture)
        img_MouseMove(program_.editor, held, x, y);
    if (held == 0 || pressed_ == Target::Label) lookUnder(at);
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) return endPan();
    if (classicButton(event->button()) == 0) return;
    release(*event);
    pointer_ = event->position();
    lookUnder(event->position());
    if (program_.editor.PreviousX == NoPoint) tellPointer();  // a zoom has moved the page
    emit handled();
}

// Comes in place of the second press. Two presses on different targets are no double-click.
void CanvasWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    const Target target = targetAt(event->position());
    if (event->button() != Qt::LeftButton || pressed_ != target || pan_)
        return mousePressEvent(event);
    if (target == Target::Label && labelUnder(event->position()) == pressedLabel_)
        lbl_DblClick(program_.editor, pressedLabel_);
    else if (target == Target::Canvas)
        picLX_DblClick(program_.editor);
    else
        return mousePressEvent(event);
    emit handled();
}

// What the turn leaves under the pointer is what the pointer is on from then: the ghost, the band
// and the read-out follow.
void CanvasWidget::wheelEvent(QWheelEvent* event) {
    event->accept();
    if (event->modifiers() & Qt::ControlModifier)
        zoomByTurn(*event);
    else
        scrollByWheel(*event);
    if (pan_) startPan(event->position());
    movePointer(event->position(), event->buttons(), event->modifiers());
    emit handled();
}

// Some platforms have turned a notch with Shift sideways already.
void CanvasWidget::scrollByWheel(const QWheelEvent& event) {
    QPointF turn = QPointF(event.angleDelta()) * (PixelsPerNotch / WheelNotches::Angle);
    if (event.modifiers() & Qt::ShiftModifier && turn.x() == 0) turn = turn.transposed();
    const Editor& editor = program_.editor;
    ScrollTo(program_.editor, editor.ScaleLeft - static_cast<Single>(turn.x() / canvas_.scale()),
             editor.ScaleTop - static_cast<Single>(turn.y() / canvas_.scale()));
}

void CanvasWidget::zoomByTurn(const QWheelEvent& event) {
    const QPointF at = event.position();
    const auto zoom = [&](ZoomStep step) {
        zoomByWheel(program_.editor, step, canvas_.inchesX(at.x()), canvas_.inchesY(at.y()));
    };
    const int notches = zoomTurn_.take(event.angleDelta().y());
    for (int i = 0; i < std::abs(notches); ++i)
        zoom(notches > 0 ? ZoomStep::In : ZoomStep::Out);
}

void CanvasWidget::startPan(QPointF at) {
    pan_ = {at, program_.editor.ScaleLeft, program_.editor.ScaleTop};
    setCursor(Qt::ClosedHandCursor);
}

void CanvasWidget::pan(QPointF at) {
    const QPointF way = (at - pan_->from) / canvas_.scale();
    ScrollTo(program_.editor, pan_->left - static_cast<Single>(way.x()),
             pan_->top - static_cast<Single>(way.y()));
}

void CanvasWidget::endPan() {
    pan_.reset();
    showPointer(shown_.Pointer);
}

CanvasFrame::CanvasFrame(Program& program, QtCanvas& canvas, QWidget* parent)
    : QWidget(parent),
      program_(program),
      picLX_(new CanvasWidget(program, canvas, this)),
      handle_(new StretchHandle(program, this)) {
    setObjectName("picFrame");
    FormLX& form = program.editor.form;
    HScroll1_ = makeBar(Qt::Horizontal, "HScroll1", form.HScroll1, &HScroll1_Change);
    VScroll1_ = makeBar(Qt::Vertical, "VScroll1", form.VScroll1, &VScroll1_Change);
    connect(picLX_, &CanvasWidget::handled, this, &CanvasFrame::handled);
    connect(handle_, &StretchHandle::handled, this, &CanvasFrame::handled);
}

QScrollBar* CanvasFrame::makeBar(Qt::Orientation orientation, const char* name, ScrollBar& state,
                                 Handler changed) {
    auto* bar = new QScrollBar(orientation, this);
    bar->setObjectName(name);
    bar->setFocusPolicy(Qt::NoFocus);
    bar->setAttribute(Qt::WA_OpaquePaintEvent, false);  // the page shows through
    bar->hide();
    connect(bar, &QScrollBar::valueChanged, this, [this, &state, changed](int value) {
        state.Value = value;
        changed(program_.editor);
        picLX_->tellPointer();
        emit handled();
    });
    return bar;
}

// The canvas takes the whole frame, or the width that a person has dragged it to.
void CanvasFrame::arrange() {
    FormLX& form = program_.editor.form;
    const bool stretchable = program_.editor.StretchMode;
    const int room = width() - (stretchable ? StretchHandle::Width : 0);
    form.FrameRoom = innerTwips(room);
    const int wanted = static_cast<int>(std::lround(form.StretchedWidth / TwipsPerPixel));
    const int used = wanted > 0 ? std::min(room, wanted + 2 * QtCanvas::Margin) : room;
    const int thick = VScroll1_->sizeHint().width();
    const QSize free(used - thick, height() - thick);
    VScroll1_->setGeometry(free.width(), 0, thick, free.height());
    HScroll1_->setGeometry(0, free.height(), free.width(), thick);
    handle_->setGeometry(used, 0, StretchHandle::Width, height());
    handle_->setVisible(stretchable);
    picLX_->setGeometry(0, 0, used, height());
}

void CanvasFrame::resizeEvent(QResizeEvent*) {
    arrange();
}

void CanvasFrame::refresh() {
    const FormLX& form = program_.editor.form;
    const Stretch now{program_.editor.StretchMode, form.StretchedWidth};
    if (shownStretch_ != now) {
        shownStretch_ = now;
        arrange();
    }
    handle_->refresh();
    showBar(*HScroll1_, shownHScroll1_, form.HScroll1);
    showBar(*VScroll1_, shownVScroll1_, form.VScroll1);
    picLX_->refresh();
}

}  // namespace ladrix
