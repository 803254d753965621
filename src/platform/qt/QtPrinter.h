#pragma once

#include "platform/Printer.h"

#include <QPageLayout>
#include <QString>

class QPrinter;

namespace marlevo {

/// Prints through Qt's dialog, over the active window or alone when there is none. The printer and
/// the paper that the user chose last are proposed again until the program ends.
///
/// A picture is laid on white and sent without loss.
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
