// picTop, the strip below the menus: colour, line width, scale, snap, zoom and Reset, and beside
// them the panel of the tool in hand. The panel's place is kept free, so that nothing moves when
// it comes or goes.
#pragma once

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

#include "app/Program.h"
#include "qt/Binding.h"
#include "qt/ColorPanel.h"

namespace ladrix {

class ToolStrip final : public QWidget {
    Q_OBJECT

  public:
    ToolStrip(Program& program, QWidget* parent);

    void refresh();

    QLineEdit& txtEdit() { return *txtEdit_; }
    QLineEdit& txtCircleEnd() { return *txtCircleEnd_; }

  signals:
    void handled();
    void escapePressed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    using Handler = void (*)(Editor&);
    enum class Look { Icon, Text };

    void makeColors(QBoxLayout& row);
    void makeWidths(QBoxLayout& row);
    void makeScale(QBoxLayout& row);
    void makeSnapAndZoom(QBoxLayout& row);
    void makeReset(QBoxLayout& row);
    void makeRadiusPanel(QBoxLayout& row);
    void makeTextPanel(QBoxLayout& row);

    QToolButton* makeButton(const char* name, const Control& state, Handler handler, Look look,
                            const QString& textOrIcon, const QString& tip);
    QLabel* makeLabel(const char* name, const Control& state, const QString& text);
    QLineEdit* makeNumberField(const char* name, TextBox& state, Handler changed,
                               const QString& tip);
    void showScaleList(const ComboBox& state);
    void run(Handler handler);

    Program& program_;
    Bindings bindings_;
    ColorPanel* picColors_ = nullptr;
    QComboBox* cmbScale_ = nullptr;
    QLineEdit *txtEdit_ = nullptr, *txtCircleEnd_ = nullptr;
};

}  // namespace ladrix
