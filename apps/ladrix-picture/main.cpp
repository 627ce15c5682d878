// Draws one SVG picture for the editor and the exporter, which start it with limits.
#include "qt/PictureWorker.h"

int main(int argc, char** argv) {
    return ladrix::pictureWorkerMain(argc, argv);
}
