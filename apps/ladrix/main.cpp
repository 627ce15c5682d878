#include "qt/Application.h"

int main(int argc, char** argv) {
    return ladrix::runEditor(argc, argv);
}
