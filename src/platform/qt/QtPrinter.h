#pragma once

#include "platform/Printer.h"

#include <QPageLayout>
#include <QString>

class QPrinter;

namespace marlevo {

/// Prints by Qt's dialog, which is shown over the active window if there is one. The dialog
/// proposes the printer and the paper that the user chose last in this run of the program.
///
/// The picture is printed on white, without lossy compression.
class QtPrinter final : public Printer {
public:
    void print(const RasterImage& picture, Size size, const std::string& jobTitle) override;

private:
    void propose(QPrinter& printer) const;
    void remember(const QPrinter& printer);

    QString printerName_;
    QPageLayout pageLayout_;
};

}  // namespace marlevo
