#include <gtest/gtest.h>

#include <QApplication>

#include "Journey.h"
#include "qt/Theme.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    ladrix::theme::apply(application);
    return RUN_ALL_TESTS();
}
