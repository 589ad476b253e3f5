#pragma once

#include <QApplication>
#include <QtTest>

// QTEST_MAIN for tests that build a web view (the map): as the program does, the view
// shares OpenGL contexts with the window, which must be asked for before the application
// object exists.
#define TAVORIC_WEB_TEST_MAIN(TestClass)                                                           \
    int main(int argc, char** argv) {                                                              \
        QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);                                \
        QApplication app(argc, argv);                                                              \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
