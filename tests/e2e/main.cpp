#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>
#include <cstring>

#include "Journey.h"
#include "SaveLoop.h"
#include "qt/Theme.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    ladrix::theme::apply(application);
    if (argc == 3 && std::strcmp(argv[1], ladrix::test::SaveLoopOption) == 0)
        return ladrix::test::runSaveLoop(argv[2]);
    return RUN_ALL_TESTS();
}
