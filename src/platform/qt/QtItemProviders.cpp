#include "platform/qt/QtItemProviders.h"

#include "platform/FileAddress.h"
#include "platform/WorkQueue.h"

#include <QFile>
#include <QMimeData>
#include <QMimeDatabase>
#include <QUrl>

#include <exception>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

namespace marlevo {

namespace {

/// At most this many bytes of the file; none of a file that cannot be read.
QByteArray beginningOf(const std::filesystem::path& file) {
    constexpr std::streamsize enough = 16384;
    QByteArray bytes(enough, Qt::Uninitialized);
    std::ifstream stream(file, std::ios::binary);
    stream.read(bytes.data(), enough);
    bytes.truncate(static_cast<qsizetype>(stream.gcount()));
    return bytes;
}

/// The whole file; nothing when it cannot be read, also because it changes meanwhile.
std::optional<std::vector<std::uint8_t>> readFile(const std::filesystem::path& file) {
    try {
        // A pipe or a device could block the reading for ever.
        if (!std::filesystem::is_regular_file(file)) return std::nullopt;
        std::vector<std::uint8_t> bytes(std::filesystem::file_size(file));
        const auto size = static_cast<std::streamsize>(bytes.size());
        std::ifstream stream(file, std::ios::binary);
        stream.read(reinterpret_cast<char*>(bytes.data()), size);
        if (stream.gcount() != size || stream.peek() != std::ifstream::traits_type::eof())
            return std::nullopt;
        return bytes;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

/// The reading of one drop's files. Nothing waits for it: the disk may be slow, or never answer.
class Loads {
public:
    /// Throws std::system_error when the system has no thread left.
    void post(std::function<void()> work) {
        if (!queue_) queue_.emplace(WorkQueue::AtEnd::detach);
        queue_->post(std::move(work));
    }

private:
    std::optional<WorkQueue> queue_;  ///< from the first load on: most drags end elsewhere
};

class FileProvider final : public ItemProvider {
public:
    FileProvider(std::filesystem::path file, std::shared_ptr<Loads> loads)
        : file_(std::move(file)), loads_(std::move(loads)) {}

    bool offersImage() const override {
        std::error_code ignored;
        if (!std::filesystem::is_regular_file(file_, ignored)) return false;
        const QMimeDatabase types;
        const QString name = QFile::decodeName(file_.filename().c_str());
        const QList<QMimeType> byName = types.mimeTypesForFileName(name);
        const QMimeType type = byName.size() == 1
                                   ? byName.first()
                                   : types.mimeTypeForFileNameAndData(name, beginningOf(file_));
        return type.name().startsWith(QLatin1String("image/"));
    }

    // The work uses nothing of the toolkit: it may run while the program ends.
    void loadImage(Completion completion) override {
        try {
            loads_->post([file = file_, completion] { completion(readFile(file)); });
        } catch (const std::system_error&) {
            completion(std::nullopt);
        }
    }

private:
    std::filesystem::path file_;
    std::shared_ptr<Loads> loads_;
};

/// The image in the data, in the first form that is an image file. Its bytes are read at once: the
/// data exists only until the end of the drop.
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
        // A source may fail to deliver a form that it offers.
        if (image.isEmpty()) return completion(std::nullopt);
        completion(std::vector<std::uint8_t>(image.begin(), image.end()));
    }

private:
    const QMimeData& data_;
    QString format_;
};

}  // namespace

std::vector<std::unique_ptr<ItemProvider>> itemProviders(const QMimeData& data) {
    std::vector<std::unique_ptr<ItemProvider>> providers;
    const auto loads = std::make_shared<Loads>();
    for (const QUrl& url : data.urls()) {
        if (auto file = pathOfFileAddress(url.toEncoded().toStdString()))
            providers.push_back(std::make_unique<FileProvider>(std::move(*file), loads));
    }
    if (providers.empty()) providers.push_back(std::make_unique<DataProvider>(data));
    return providers;
}

}  // namespace marlevo
