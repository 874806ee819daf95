#pragma once

#include "scenegraph/SoTavrik.h"

#include <QApplication>
#include <QStandardPaths>
#include <QtTest>

/** The main() of a test class: Coin and Qt up, settings apart from the user's. */
#define TAVRIK_TEST_MAIN(TestClass)                                                                \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        QStandardPaths::setTestModeEnabled(true);                                                  \
        QApplication application(argc, argv);                                                      \
        SoTavrik::init();                                                                          \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
