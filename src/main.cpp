#include "platform/BackgroundThread.h"
#include "platform/qt/QtImageCodec.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtPrinter.h"
#include "ui/MarlevoApp.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    // Every position of the pointer becomes a point of the stroke: none may be merged away.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    QCoreApplication::setAttribute(Qt::AA_CompressTabletEvents, false);

    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Marlevo"));

    marlevo::QtMainQueue mainQueue;
    const marlevo::QtImageCodec imageCodec;
    marlevo::QtPrinter printer;
    marlevo::QtPasteboard pasteboard;
    // Behind what its work uses, so that it ends first.
    marlevo::BackgroundThread backgroundQueue;
    marlevo::MarlevoApp app({.mainQueue = &mainQueue,
                             .imageCodec = &imageCodec,
                             .backgroundQueue = &backgroundQueue,
                             .printer = &printer,
                             .pasteboard = &pasteboard});
    app.openWindow();
    return QApplication::exec();
}
