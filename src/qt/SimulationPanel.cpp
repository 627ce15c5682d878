#include "qt/SimulationPanel.h"

#include <QPaintEvent>
#include <QPainter>
#include <QToolButton>

#include "qt/InputFilters.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr Single TwipsPerPixel = 15;
constexpr int PanelHeight = static_cast<int>(SimPanelHeight / TwipsPerPixel + 0.5f);
constexpr int ControlHeight = PanelHeight - theme::Unit;
constexpr int TimeFieldWidth = 72, LongestNumber = 12;
constexpr int SampleSide = 12;

// One entry of the legend: a patch of its colour and the caption.
class LegendLabel final : public QLabel {
  public:
    LegendLabel(const Control& state, QWidget* parent)
        : QLabel(toQString(state.Caption), parent), color_(theme::color(state.BackColor)) {
        setToolTip(toQString(state.ToolTipText));
        setContentsMargins(SampleSide + theme::Unit, 0, 0, 0);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color_);
        painter.drawRoundedRect(QRectF(0, (height() - SampleSide) / 2.0, SampleSide, SampleSide), 2,
                                2);
        painter.end();
        QLabel::paintEvent(event);
    }

  private:
    QColor color_;
};

}  // namespace

SimulationPanel::SimulationPanel(Program& program, QWidget* parent)
    : QWidget(parent), program_(program) {
    setObjectName("picSimulation");
    setFixedHeight(PanelHeight);
    const Simulation& state = program.simulation;
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(2 * theme::Unit, 0, 2 * theme::Unit, 1);
    row->setSpacing(theme::Unit);
    QLabel* title = makeLabel("lblSim", state.lblSim);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    row->addWidget(title);
    row->addSpacing(2 * theme::Unit);
    row->addWidget(makeButton("cmdVoltage", state.cmdVoltage, &cmdVoltage_Click));
    row->addWidget(makeButton("cmdCurrent", state.cmdCurrent, &cmdCurrent_Click));
    row->addSpacing(2 * theme::Unit);
    row->addWidget(makeLabel("lblTime", state.lblTime));
    row->addWidget(makeTimeField());
    row->addWidget(makeButton("cmdTimer", state.cmdTimer, &cmdTimer_Click));
    row->addStretch(1);
    makeLegend(*row);
    bindings_.addPanel(*this, state.picSimulation);
    hide();
}

void SimulationPanel::run(Handler handler) {
    handler(program_.simulation, program_.editor);
    emit handled();
}

QAbstractButton* SimulationPanel::makeButton(const char* name, const Control& state,
                                             Handler handler) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setText(toQString(state.Caption));
    button->setFocusPolicy(Qt::TabFocus);
    button->setFixedHeight(ControlHeight);
    bindings_.add(*button, state);
    connect(button, &QToolButton::clicked, this, [this, handler] { run(handler); });
    return button;
}

QLabel* SimulationPanel::makeLabel(const char* name, const Control& state) {
    auto* label = new QLabel(this);
    label->setObjectName(name);
    bindings_.add(*label, state);
    return label;
}

QLineEdit* SimulationPanel::makeTimeField() {
    TextBox& state = program_.simulation.txtTimer;
    auto* field = new QLineEdit(this);
    field->setObjectName("txtTimer");
    field->setAccessibleName(tr("Time period in milliseconds"));
    field->setFixedSize(TimeFieldWidth, ControlHeight);
    field->setAlignment(Qt::AlignRight);
    field->setMaxLength(LongestNumber);
    field->setValidator(new NumberFilter(field));
    bindings_.add(*field, state);
    connect(field, &QLineEdit::textEdited, this,
            [&state](const QString& text) { state.Text = fromQString(text); });
    connect(field, &QLineEdit::returnPressed, this, [this] { run(&cmdTimer_Click); });
    return field;
}

void SimulationPanel::makeLegend(QBoxLayout& row) {
    int index = 0;
    for (const Control& state : program_.simulation.lblSimColor) {
        auto* label = new LegendLabel(state, this);
        label->setObjectName(QStringLiteral("lblSimColor%1").arg(index++));
        bindings_.add(*label, state);
        row.addSpacing(theme::Unit);
        row.addWidget(label);
    }
}

void SimulationPanel::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), theme::Chrome);
    painter.fillRect(0, height() - 1, width(), 1, theme::Hairline);
}

}  // namespace ladrix
