#include "platform/qt/QtPasteboard.h"

#include "platform/qt/QtImageCodec.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>
#include <array>
#include <utility>

namespace marlevo {

namespace {

struct Form {
    QLatin1String name;
    ImageCodec::Format format{};
};

/// Lossless formats first, because many programs use the first format that they can read.
constexpr std::array forms{
    Form{QLatin1String("image/png"), ImageCodec::Format::png},
    Form{QLatin1String("image/tiff"), ImageCodec::Format::tiff},
    Form{QLatin1String("image/bmp"), ImageCodec::Format::bmp},
    Form{QLatin1String("image/jpeg"), ImageCodec::Format::jpeg},
};

/// A picture that is encoded when another program requests it. It has its own codec because the
/// clipboard keeps it until the program ends.
class PictureData final : public QMimeData {
public:
    explicit PictureData(RasterImage picture) : picture_(std::move(picture)) {}

    QStringList formats() const override {
        QStringList names;
        for (const Form& form : forms)
            names << form.name;
        return names;
    }

protected:
    QVariant retrieveData(const QString& name, QMetaType) const override {
        const auto* const form = std::ranges::find(forms, name, &Form::name);
        if (form == forms.end()) return {};
        const auto file = codec_.encode(picture_, form->format);
        if (!file) return {};
        return QByteArray(reinterpret_cast<const char*>(file->data()),
                          static_cast<qsizetype>(file->size()));
    }

private:
    RasterImage picture_;
    QtImageCodec codec_;
};

}  // namespace

// The clipboard takes ownership.
void QtPasteboard::setImage(const RasterImage& picture) {
    QGuiApplication::clipboard()->setMimeData(new PictureData(picture));
}

}  // namespace marlevo
