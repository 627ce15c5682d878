#include "qt/Theme.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QSvgRenderer>
#include <QToolTip>
#include <map>

namespace ladrix::theme {

namespace {

constexpr int IconSide = 18;
constexpr int CursorSide = 25;
constexpr int MessageSide = 40;
constexpr int ScrollBarWidth = 14;
constexpr int ShadowDepth = 4;

void paintRounded(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& edge) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edge.alpha() == 0 ? QPen(Qt::NoPen) : QPen(edge, 1));
    painter.setBrush(fill);
    const QRectF inner = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(inner, Radius, Radius);
    painter.restore();
}

QString pathOf(const char* name) {
    return QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name));
}

QPixmap render(const QString& path, int side, double pixelRatio) {
    QSvgRenderer renderer(path);
    const int pixels = qRound(side * pixelRatio);
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter, QRectF(0, 0, pixels, pixels));
    painter.end();
    pixmap.setDevicePixelRatio(pixelRatio);
    return pixmap;
}

// Fusion without its gradients: flat buttons and fields, thin scroll bars, quiet menus.
class Style final : public QProxyStyle {
  public:
    Style() : QProxyStyle(QStyleFactory::create("Fusion")) {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        switch (metric) {
            case PM_ScrollBarExtent:
                return ScrollBarWidth;
            case PM_ScrollBarSliderMin:
                return 32;
            case PM_SmallIconSize:
            case PM_ButtonIconSize:
            case PM_ToolBarIconSize:
                return IconSide;
            case PM_ToolTipLabelFrameWidth:
                return Unit + 1;
            case PM_MessageBoxIconSize:
                return MessageSide;
            case PM_MenuBarVMargin:
                return 2;
            case PM_MenuBarHMargin:
                return Unit;
            case PM_ButtonShiftHorizontal:
            case PM_ButtonShiftVertical:
                return 0;
            default:
                return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_ToolTip_WakeUpDelay) return 500;
        // A list as long as its box says, with a scroll bar, in place of a menu of all entries.
        if (hint == SH_ComboBox_Popup) return 0;
        if (hint == SH_EtchDisabledText || hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }

    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override {
        switch (which) {
            case SP_MessageBoxQuestion:
                return render(pathOf("message-question"), MessageSide, qApp->devicePixelRatio());
            case SP_MessageBoxInformation:
                return render(pathOf("message-information"), MessageSide, qApp->devicePixelRatio());
            case SP_MessageBoxWarning:
                return render(pathOf("message-warning"), MessageSide, qApp->devicePixelRatio());
            // The menu bar asks for it before it is known to be needed; the toolkit's own would
            // load every picture format.
            case SP_ToolBarHorizontalExtensionButton:
                return icon("chevron-down");
            default:
                return QProxyStyle::standardIcon(which, option, widget);
        }
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        switch (element) {
            case PE_PanelButtonCommand:
            case PE_PanelButtonTool:
                return paintButton(*option, *painter);
            case PE_FrameLineEdit:
            case PE_PanelLineEdit:
                if (widget && widget->parentWidget() &&
                    widget->parentWidget()->inherits("QComboBox"))
                    return;
                return paintField(*option, *painter);
            case PE_FrameFocusRect:
                return;  // the accent outline tells the focus
            default:
                return QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        if (element == CE_MenuBarEmptyArea) return;
        if (element == CE_MenuBarItem) {
            if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
                return paintMenuTitle(*item, *painter);
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override {
        if (control == CC_ScrollBar) {
            if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
                return paintScrollBar(*bar, *painter, widget);
        }
        if (control == CC_ComboBox) {
            if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option))
                return paintComboBox(*box, *painter, widget);
        }
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

    // No arrow buttons at the ends: the groove is the whole bar.
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override {
        const QRect whole = QProxyStyle::subControlRect(control, option, part, widget);
        const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        if (control != CC_ScrollBar || !bar) return whole;
        return scrollBarPart(*bar, part);
    }

  private:
    void paintMenuTitle(const QStyleOptionMenuItem& item, QPainter& painter) const {
        const bool open = item.state & State_Sunken;
        if (open || (item.state & State_Selected))
            paintRounded(painter, item.rect.adjusted(0, 1, 0, -1), open ? FaceDown : FaceHover,
                         Qt::transparent);
        drawItemText(&painter, item.rect, Qt::AlignCenter | Qt::TextShowMnemonic, item.palette,
                     item.state & State_Enabled, item.text, QPalette::WindowText);
    }

    static void paintButton(const QStyleOption& option, QPainter& painter) {
        const bool enabled = option.state & State_Enabled;
        const bool down = option.state & (State_Sunken | State_On);
        const bool over = enabled && (option.state & State_MouseOver);
        const bool focused = enabled && (option.state & State_HasFocus);
        QColor fill = option.palette.color(QPalette::Button);
        const bool marked = fill == color(Cyan);
        QColor edge = marked ? fill.darker(140) : Edge;
        if (!marked) fill = down ? FaceDown : over ? FaceHover : fill;
        if (!enabled && !marked) fill = Chrome;
        const bool flat = (option.state & State_AutoRaise) && !marked;
        if (flat && !over && !down && !focused) return;
        if (!enabled) edge = Hairline;
        paintRounded(painter, option.rect, fill, focused ? Accent : edge);
    }

    static void paintField(const QStyleOption& option, QPainter& painter) {
        const bool enabled = option.state & State_Enabled;
        const bool focused = option.state & State_HasFocus;
        paintRounded(painter, option.rect, enabled ? QColor(Qt::white) : Chrome,
                     focused   ? Accent
                     : enabled ? Edge
                               : Hairline);
    }

    void paintComboBox(const QStyleOptionComboBox& box, QPainter& painter,
                       const QWidget* widget) const {
        if (box.editable) {
            paintField(box, painter);
        } else {
            paintButton(box, painter);
        }
        const QRect arrow = subControlRect(CC_ComboBox, &box, SC_ComboBoxArrow, widget);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(box.state & State_Enabled ? TextQuiet : TextDisabled, 1.5,
                            Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF tip = QRectF(arrow).center() + QPointF(0, 2);
        const QPointF chevron[] = {tip + QPointF(-4, -4), tip, tip + QPointF(4, -4)};
        painter.drawPolyline(chevron, 3);
        painter.restore();
    }

    static QRect scrollBarPart(const QStyleOptionSlider& bar, SubControl part) {
        const bool flat = bar.orientation == Qt::Horizontal;
        const int length = flat ? bar.rect.width() : bar.rect.height();
        const int range = bar.maximum - bar.minimum;
        const int thumb = range <= 0
                              ? length
                              : std::clamp(static_cast<int>(static_cast<qint64>(length) *
                                                            bar.pageStep / (range + bar.pageStep)),
                                           std::min(32, length), length);
        const int start = sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                  length - thumb, bar.upsideDown);
        const auto span = [&](int from, int to) {
            const QRect along = flat ? QRect(from, 0, to - from, bar.rect.height())
                                     : QRect(0, from, bar.rect.width(), to - from);
            return visualRect(bar.direction, bar.rect, along);
        };
        switch (part) {
            case SC_ScrollBarGroove:
                return span(0, length);
            case SC_ScrollBarSlider:
                return span(start, start + thumb);
            case SC_ScrollBarSubPage:
                return span(0, start);
            case SC_ScrollBarAddPage:
                return span(start + thumb, length);
            default:
                return {};
        }
    }

    static void paintScrollBar(const QStyleOptionSlider& bar, QPainter& painter,
                               const QWidget* widget) {
        const bool overCanvas = widget && !widget->testAttribute(Qt::WA_OpaquePaintEvent);
        if (!overCanvas) painter.fillRect(bar.rect, Chrome);
        const bool flat = bar.orientation == Qt::Horizontal;
        const QRect thumb = scrollBarPart(bar, SC_ScrollBarSlider);
        const bool active = (bar.activeSubControls & SC_ScrollBarSlider) &&
                            (bar.state & (State_MouseOver | State_Sunken));
        const QRectF inner =
            flat ? QRectF(thumb).adjusted(2, 4, -2, -4) : QRectF(thumb).adjusted(4, 2, -4, -2);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(active ? QColor(0x7C, 0x86, 0x94) : QColor(0xA9, 0xB1, 0xBD));
        painter.drawRoundedRect(inner, 3, 3);
        painter.restore();
    }
};

QPalette lightPalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, Chrome);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, Chrome);
    palette.setColor(QPalette::Button, Face);
    palette.setColor(QPalette::Light, Qt::white);
    palette.setColor(QPalette::Midlight, FaceHover);
    palette.setColor(QPalette::Mid, Edge);
    palette.setColor(QPalette::Dark, QColor(0x9A, 0xA2, 0xAD));
    palette.setColor(QPalette::Shadow, QColor(0x6B, 0x74, 0x80));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Text);
        palette.setColor(QPalette::Disabled, role, TextDisabled);
    }
    palette.setColor(QPalette::PlaceholderText, TextQuiet);
    palette.setColor(QPalette::Highlight, Accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, Edge);
    palette.setColor(QPalette::Link, Accent);
    palette.setColor(QPalette::ToolTipBase, QColor(0x2A, 0x30, 0x39));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    return palette;
}

QPixmap paler(const QPixmap& pixmap) {
    QPixmap pale(pixmap.size());
    pale.setDevicePixelRatio(pixmap.devicePixelRatio());
    pale.fill(Qt::transparent);
    QPainter painter(&pale);
    painter.setOpacity(0.38);
    painter.drawPixmap(QPointF(0, 0), pixmap);
    return pale;
}

}  // namespace

void apply(QApplication& application) {
    application.setStyle(new Style);
    application.setPalette(lightPalette());
    QToolTip::setPalette(lightPalette());
}

QIcon icon(const char* name) {
    const QPixmap pixmap = render(pathOf(name), IconSide, qApp->devicePixelRatio());
    QIcon result(pixmap);
    result.addPixmap(paler(pixmap), QIcon::Disabled);
    return result;
}

QIcon applicationIcon() {
    QIcon result;
    for (const int side : {32, 64})
        result.addPixmap(render(pathOf("ladrix"), side, 1));
    return result;
}

QCursor cursor(const char* name, int hotX, int hotY) {
    static std::map<std::string, QCursor> made;
    const auto [place, isNew] = made.try_emplace(name);
    if (isNew)
        place->second =
            QCursor(render(pathOf(name), CursorSide, qApp->devicePixelRatio()), hotX, hotY);
    return place->second;
}

QColor color(Long value) {
    if (value == ButtonFace) return Face;
    return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
}

void paintPageShadow(QPainter& painter, const QRect& page) {
    for (int i = 1; i <= ShadowDepth; ++i)
        painter.fillRect(page.translated(i / 2, i).adjusted(-1, 0, 1, 0), QColor(0, 0, 0, 10));
}

}  // namespace ladrix::theme
