#include "platform/qt/QtImageCodec.h"

#include <QBuffer>
#include <QColorSpace>
#include <QDir>
#include <QImage>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>

#include <algorithm>
#include <array>
#include <sys/inotify.h>
#include <unistd.h>
#include <utility>

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

QByteArray svg(const QByteArray& contents) {
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
           "width='9' height='9'>" +
           contents + "</svg>";
}

std::vector<std::uint8_t> bytesOf(const QByteArray& text) { return {text.begin(), text.end()}; }

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

    void jpegAndBmpHaveAWhiteBackground() {
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
        // Small as a file and, at one bit a pixel, for the reader; too large when decoded.
        QImage image(11600, 11600, QImage::Format_Mono);
        image.fill(0);
        const auto png = fileOf(image, "png");
        QVERIFY(!codec.decode(png));
        QVERIFY(codec.decode(fileOf(image.copy(0, 0, 400, 400), "png")));

        // The header of an icon says 256 x 256, whatever the picture inside.
        std::vector<std::uint8_t> icon{0, 0, 1, 0, 1, 0, 0, 0, 0, 0, 1, 0, 1, 0};
        for (const std::size_t number : {png.size(), std::size_t{22}}) {
            for (int shift = 0; shift < 32; shift += 8)
                icon.push_back(static_cast<std::uint8_t>(number >> shift));
        }
        icon.insert(icon.end(), png.begin(), png.end());
        QVERIFY(!codec.decode(icon));
    }

    void drawingsUseOnlyThemselves() {
        const QByteArray drawing = svg("<defs><linearGradient id='g'><stop stop-color='#00f'/>"
                                       "</linearGradient><rect id='r' width='9' height='9'/></defs>"
                                       "<use xlink:href='#r' style='fill: url(#g)'/>");
        const auto decoded = codec.decode(bytesOf(drawing));
        QCOMPARE(pixel(decoded.value(), 5, 5), (std::vector{255, 0, 0, 255}));
    }

    void drawingsReachNoFile() {
        QTemporaryDir folder;
        const QString photo = folder.filePath("photo.png");
        QImage(9, 9, QImage::Format_RGB32).save(photo);
        const QByteArray path = photo.toUtf8();
        const QByteArray image = "<image width='9' height='9' xlink:href='" + path + "'/>";
        const QByteArray rect = "<rect width='9' height='9'/>";
        const QByteArray style = "rect { fill: red }";
        const std::pair<const char*, QByteArray> drawings[] = {
            {"image", svg(image)},
            {"relative image", svg("<image width='9' height='9' href='photo.png'/>")},
            {"drawing within", svg("<image width='9' height='9' xlink:href='data:image/svg+xml;"
                                   "base64," +
                                   svg(image).toBase64() + "'/>")},
            {"entity", "<!DOCTYPE svg [<!ENTITY e '" + path + "'>]>" + svg(rect)},
            {"style sheet", "<?xml-stylesheet type='text/css' href='" + path + "'?>" + svg(rect)},
            {"import", svg("<style>@import '" + path + "';" + style + "</style>" + rect)},
            {"escape", svg("<style>rect { fill: u\\72l(" + path + ") }</style>" + rect)},
            {"address", svg("<rect width='9' height='9' style='fill: url( \"" + path + "\")'/>")},
            {"use of a file", svg("<use xlink:href='" + path + "#r'/>")},
            {"packed", qCompress(svg(rect)).sliced(4).prepend("\x1f\x8b")},
        };
        const int opened = inotify_init1(IN_NONBLOCK);
        inotify_add_watch(opened, path.constData(), IN_OPEN);
        const QString before = QDir::currentPath();
        QDir::setCurrent(folder.path());
        for (const auto& [what, drawing] : drawings) {
            QVERIFY2(!codec.decode(bytesOf(drawing)), what);
            std::array<char, 512> event{};
            QVERIFY2(::read(opened, event.data(), event.size()) < 0, what);
        }
        QDir::setCurrent(before);
        ::close(opened);
    }

    void drawingsHaveBounds() {
        const QByteArray rect = "<rect width='9' height='9'/>";
        QVERIFY(codec.decode(bytesOf(svg(rect.repeated(9'000)))));
        QVERIFY(!codec.decode(bytesOf(svg(rect.repeated(11'000)))));
        const QByteArray group = "<g id='a'>" + rect.repeated(200) + "</g>";
        const QByteArray use = "<use xlink:href='#a'/>";
        QVERIFY(codec.decode(bytesOf(svg(group + use.repeated(40)))));
        QVERIFY(!codec.decode(bytesOf(svg(group + use.repeated(60)))));
        QVERIFY(!codec.decode(bytesOf(svg("<g id='a'><use xlink:href='#b'/></g>"
                                          "<g id='b'>" +
                                          use + "</g>"))));
        const auto nested = [](int depth) {
            return svg(QByteArray("<g>").repeated(depth) + QByteArray("</g>").repeated(depth));
        };
        QVERIFY(codec.decode(bytesOf(nested(250))));
        QVERIFY(!codec.decode(bytesOf(nested(260))));
        const auto large =
            codec.decode(bytesOf("<svg width='16000' height='16000'>" + rect + "</svg>"));
        QCOMPARE(large.value().width(), 4096);
    }

    void damagedPicturesPrintNothing() {
        const auto broken = [](std::vector<std::uint8_t> file, std::size_t length) {
            file.resize(length, 0);
            return file;
        };
        const RasterImage image = everyPremultipliedPixel();
        auto badHeader = codec.encode(image, Format::png).value();
        badHeader[20] ^= 1;
        const auto drawing = bytesOf(svg("<use xlink:href='#none'/>"));
        const std::vector<std::vector<std::uint8_t>> files{
            badHeader, broken(codec.encode(image, Format::tiff).value(), 900),
            broken(codec.encode(image, Format::bmp).value(), 40), drawing};

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
