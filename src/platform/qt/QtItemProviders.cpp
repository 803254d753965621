#include "platform/qt/QtItemProviders.h"

#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QMimeDatabase>
#include <QThreadPool>
#include <QUrl>

#include <new>
#include <utility>

namespace marlevo {

namespace {

std::vector<std::uint8_t> toBytes(const QByteArray& data) { return {data.begin(), data.end()}; }

std::optional<std::vector<std::uint8_t>> readFile(const QString& path) {
    // A pipe or a device could keep the reader waiting for ever.
    if (!QFileInfo(path).isFile()) return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    try {
        const QByteArray contents = file.readAll();
        if (file.error() != QFileDevice::NoError) return std::nullopt;
        return toBytes(contents);
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

class FileProvider final : public ItemProvider {
public:
    explicit FileProvider(QString path) : path_(std::move(path)) {}

    bool offersImage() const override {
        return QMimeDatabase().mimeTypeForFile(path_).name().startsWith(QLatin1String("image/"));
    }

    void loadImage(Completion completion) override {
        QThreadPool::globalInstance()->start(
            [path = path_, completion = std::move(completion)] { completion(readFile(path)); });
    }

private:
    QString path_;
};

/// The image in the data, in the first form that is an image file. Its bytes are taken at once,
/// since the data ends with the drop.
class DataProvider final : public ItemProvider {
public:
    explicit DataProvider(const QMimeData& data) : data_(data) {
        for (const QString& format : data.formats()) {
            if (!format.startsWith(QLatin1String("image/"))) continue;
            format_ = format;
            break;
        }
    }

    bool offersImage() const override { return !format_.isEmpty(); }

    void loadImage(Completion completion) override {
        const QByteArray image = data_.data(format_);
        // A source that broke its promise of the form gives nothing of it.
        completion(image.isEmpty() ? std::nullopt : std::optional(toBytes(image)));
    }

private:
    const QMimeData& data_;
    QString format_;
};

}  // namespace

std::vector<std::unique_ptr<ItemProvider>> itemProviders(const QMimeData& data) {
    std::vector<std::unique_ptr<ItemProvider>> providers;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            providers.push_back(std::make_unique<FileProvider>(url.toLocalFile()));
    }
    if (providers.empty()) providers.push_back(std::make_unique<DataProvider>(data));
    return providers;
}

}  // namespace marlevo
