#include "platform/qt/QtImageCodec.h"
#include "platform/qt/QtMainQueue.h"
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
    marlevo::MarlevoApp app({.mainQueue = &mainQueue, .imageCodec = &imageCodec});
    app.openWindow();
    return QApplication::exec();
}
