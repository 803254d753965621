#include "platform/qt/QtPrinter.h"

#include "platform/qt/QtImages.h"

#include <QApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <memory>

namespace marlevo {

namespace {

constexpr double pointsPerInch = 72;

void paintCentred(QPrinter& printer, const QImage& picture, QSizeF points) {
    QPainter painter;
    if (!painter.begin(&printer)) return;
    const QSizeF page = printer.pageRect(QPrinter::Point).size();
    if (points.width() > page.width() || points.height() > page.height())
        points.scale(page, Qt::KeepAspectRatio);
    const QPointF corner((page.width() - points.width()) / 2,
                         (page.height() - points.height()) / 2);

    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(printer.logicalDpiX() / pointsPerInch, printer.logicalDpiY() / pointsPerInch);
    painter.drawImage(QRectF(corner, points), picture);
}

}  // namespace

void QtPrinter::print(const RasterImage& picture, Size size, const std::string& jobTitle) {
    const QImage image = onWhite(qImageFrom(picture));
    if (image.isNull()) return;
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    propose(*printer);
    printer->setDocName(QString::fromStdString(jobTitle));

    auto* dialog = new QPrintDialog(printer.get(), QApplication::activeWindow());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    // The connection owns the printer, which the dialog uses.
    QObject::connect(dialog, &QDialog::accepted, dialog, [this, printer, image, size] {
        remember(*printer);
        paintCentred(*printer, image, {size.width, size.height});
    });
    dialog->open();
}

void QtPrinter::propose(QPrinter& printer) const {
    if (!printerName_.isEmpty()) printer.setPrinterName(printerName_);
    if (pageLayout_.isValid()) printer.setPageLayout(pageLayout_);
}

void QtPrinter::remember(const QPrinter& printer) {
    printerName_ = printer.printerName();
    pageLayout_ = printer.pageLayout();
}

}  // namespace marlevo
