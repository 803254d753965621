#include "platform/qt/QtImageCodec.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImage>
#include <QImageWriter>
#include <QTemporaryFile>
#include <QTest>

#include <algorithm>
#include <unistd.h>

using namespace marlevo;

namespace {

using Format = ImageCodec::Format;

/// Every alpha with every colour that premultiplied pixels can have.
RasterImage everyPremultipliedPixel() {
    std::vector<std::uint8_t> bytes;
    for (int alpha = 0; alpha < 256; ++alpha) {
        for (int value = 0; value < 256; ++value) {
            const auto a = static_cast<std::uint8_t>(alpha);
            const auto red = static_cast<std::uint8_t>(std::min(alpha, value));
            bytes.insert(bytes.end(), {a, red, static_cast<std::uint8_t>(a - red), a});
        }
    }
    return {256, 256, std::move(bytes)};
}

std::vector<std::uint8_t> fileOf(const QImage& image, const char* format,
                                 QImageIOHandler::Transformations turned = {}) {
    QBuffer device;
    QImageWriter writer(&device, format);
    writer.setTransformation(turned);
    if (!writer.write(image)) qFatal("cannot write %s", format);
    return {device.data().begin(), device.data().end()};
}

std::vector<int> pixel(const RasterImage& image, int x, int y) {
    const auto bytes = image.pixel(x, y);
    return {bytes.begin(), bytes.end()};
}

}  // namespace

class QtImageCodecTests : public QObject {
    Q_OBJECT

    const QtImageCodec codec;

private Q_SLOTS:
    void pngAndTiffKeepEveryPixel() {
        const RasterImage original = everyPremultipliedPixel();
        for (const Format format : {Format::png, Format::tiff}) {
            const auto decoded = codec.decode(codec.encode(original, format).value());
            QVERIFY(decoded == original);
        }
    }

    void aPixelIsAPointOnEveryScreen() {
        for (const Format format : {Format::png, Format::jpeg, Format::tiff, Format::bmp}) {
            const auto file = codec.encode(everyPremultipliedPixel(), format).value();
            const QImage image = QImage::fromData(file.data(), int(file.size()));
            QCOMPARE(qRound(image.dotsPerMeterX() * 0.0254), 72);
            QCOMPARE(qRound(image.dotsPerMeterY() * 0.0254), 72);
        }
    }

    void jpegAndBmpLieOnWhite() {
        // A transparent, a half black and a full blue quarter.
        constexpr int side = 32;
        std::vector<std::uint8_t> bytes;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                if (y < side / 2)
                    bytes.insert(bytes.end(), {0, 0, 0, 0});
                else if (x < side / 2)
                    bytes.insert(bytes.end(), {128, 0, 0, 0});
                else
                    bytes.insert(bytes.end(), {255, 0, 0, 255});
            }
        }
        const RasterImage original(side, side, std::move(bytes));
        const auto bmp = codec.decode(codec.encode(original, Format::bmp).value());
        QCOMPARE(pixel(*bmp, 4, 4), (std::vector{255, 255, 255, 255}));
        QCOMPARE(pixel(*bmp, 4, 28), (std::vector{255, 127, 127, 127}));
        QCOMPARE(pixel(*bmp, 28, 28), (std::vector{255, 0, 0, 255}));

        const auto jpeg = codec.decode(codec.encode(original, Format::jpeg).value());
        QVERIFY(pixel(*jpeg, 4, 4)[1] > 250);
        QVERIFY(std::abs(pixel(*jpeg, 4, 28)[1] - 127) < 4);
    }

    void orientedPicturesAreTurnedUpright() {
        QImage image(20, 10, QImage::Format_RGB32);
        image.fill(Qt::white);
        image.setPixel(0, 0, qRgb(255, 0, 0));
        const auto upright =
            codec.decode(fileOf(image, "tiff", QImageIOHandler::TransformationRotate90));
        QCOMPARE(upright->width(), 10);
        QCOMPARE(upright->height(), 20);
        QCOMPARE(pixel(*upright, 9, 0), (std::vector{255, 255, 0, 0}));
    }

    void picturesWithAColorProfileBecomeSrgb() {
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(qRgb(128, 128, 128));
        image.setColorSpace(QColorSpace::SRgbLinear);
        const auto decoded = codec.decode(fileOf(image, "png"));
        // Half the light is 188 in sRGB.
        QVERIFY(std::abs(pixel(*decoded, 1, 1)[1] - 188) <= 1);
    }

    void tooManyPixelsAreRefused() {
        // Small as a file and, one bit a pixel, also for the reader; not for us.
        QImage image(16400, 16400, QImage::Format_Mono);
        image.fill(0);
        QVERIFY(!codec.decode(fileOf(image, "png")));
        QVERIFY(codec.decode(fileOf(image.copy(0, 0, 400, 400), "png")));
    }

    void damagedPicturesPrintNothing() {
        const auto broken = [](std::vector<std::uint8_t> file, std::size_t length) {
            file.resize(length, 0);
            return file;
        };
        const RasterImage image = everyPremultipliedPixel();
        auto badHeader = codec.encode(image, Format::png).value();
        badHeader[20] ^= 1;
        const QByteArray drawing = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
                                   "<use xlink:href='#none'/></svg>";
        const std::vector<std::vector<std::uint8_t>> files{
            badHeader,
            broken(codec.encode(image, Format::tiff).value(), 900),
            broken(codec.encode(image, Format::bmp).value(), 40),
            {drawing.begin(), drawing.end()}};

        QTemporaryFile errors;
        QVERIFY(errors.open());
        const auto testMessages = qInstallMessageHandler(nullptr);
        const int before = ::dup(STDERR_FILENO);
        ::dup2(errors.handle(), STDERR_FILENO);
        for (const auto& file : files)
            codec.decode(file);
        qWarning("other messages are printed");
        ::dup2(before, STDERR_FILENO);
        ::close(before);
        qInstallMessageHandler(testMessages);
        errors.seek(0);
        QCOMPARE(errors.readAll(), QByteArray("other messages are printed\n"));
    }

    void bytesThatAreNoImageGiveNothing() {
        QVERIFY(!codec.decode({}));
        const std::vector<std::uint8_t> text{'n', 'o', ' ', 'i', 'm', 'a', 'g', 'e'};
        QVERIFY(!codec.decode(text));
        auto cut = codec.encode(everyPremultipliedPixel(), Format::png).value();
        cut.resize(20);
        QVERIFY(!codec.decode(cut));
    }
};

QTEST_MAIN(QtImageCodecTests)
#include "QtImageCodecTests.moc"
