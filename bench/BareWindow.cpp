// The least that the toolkit can show: an empty window of the size of the editor's, with --text one
// line of text in it. Measured by StartBench; links nothing but the toolkit.
#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QWidget>

#include "StartProbe.h"

int main(int argc, char** argv) {
    ladrix::bench::probeStart();
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(QSize(1240, 900).boundedTo(window.screen()->availableSize() - QSize(16, 48)));
    if (argc == 2) (new QLabel("--text", &window))->move(20, 20);
    window.show();
    return QApplication::exec();
}
