// picSimulation, the panel over the canvas while a circuit is simulated: which set of drawings is
// shown, the period of the timer, and what the colours mean.
#pragma once

#include <QAbstractButton>
#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include "app/Program.h"
#include "qt/Binding.h"

namespace ladrix {

class SimulationPanel final : public QWidget {
    Q_OBJECT

  public:
    SimulationPanel(Program& program, QWidget* parent);

    void refresh() { bindings_.refresh(); }

  signals:
    void handled();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    using Handler = void (*)(Simulation&, Editor&);

    QAbstractButton* makeButton(const char* name, const Control& state, Handler handler);
    QLabel* makeLabel(const char* name, const Control& state);
    QLineEdit* makeTimeField();
    void makeLegend(QBoxLayout& row);
    void run(Handler handler);

    Program& program_;
    Bindings bindings_;
};

}  // namespace ladrix
