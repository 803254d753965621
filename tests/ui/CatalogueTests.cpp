#include "tests/ui/RunningApp.h"
#include "ui/canvas/CanvasTexts.h"
#include "ui/controls/IconButton.h"
#include "ui/windows/Translations.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTranslator>
#include <QTreeWidget>
#include <QXmlStreamReader>

#include <map>
#include <set>
#include <utility>

using namespace marlevo;

namespace {

using Text = std::pair<QString, QString>;  // context and source
using Catalogue = std::map<Text, QString>;

constexpr const char* languages[] = {"en", "de", "fr", "es", "ja"};

/// Entries that are not finished have no translation.
Catalogue readCatalogue(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qPrintable(path));
    QXmlStreamReader xml(&file);
    Catalogue entries;
    Text text;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("name")) text.first = xml.readElementText();
        if (xml.name() == QLatin1String("source"))
            entries[text = {text.first, xml.readElementText()}];
        if (xml.name() == QLatin1String("translation") && !xml.attributes().hasAttribute("type"))
            entries[text] = xml.readElementText();
    }
    if (xml.hasError()) qFatal("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    return entries;
}

Catalogue textsOfTheSources() { return readCatalogue(qEnvironmentVariable("MARLEVO_TEXTS")); }

Catalogue catalogueOf(const QString& language) {
    return readCatalogue(QStringLiteral("%1/marlevo_%2.ts")
                             .arg(qEnvironmentVariable("MARLEVO_CATALOGUES"), language));
}

std::set<QString> placeholders(const QString& text) {
    if (text == QLatin1String("single_stroke") || text == QLatin1String("multiple_strokes"))
        return {"%1"};
    static const QRegularExpression placeholder("%L?[0-9n]+");
    std::set<QString> found;
    for (const auto& match : placeholder.globalMatch(text))
        found.insert(match.captured());
    return found;
}

QString fault(const QString& source, const QString& translation) {
    if (translation.trimmed().isEmpty()) return "no translation";
    if (placeholders(source) != placeholders(translation)) return "other placeholders";
    if (source.endsWith(u'…') != translation.endsWith(u'…')) return "other ending";
    if (source.count('&') != translation.count('&')) return "other mnemonic";
    return {};
}

/// Puts each text into brackets and records it.
class Brackets : public QTranslator {
public:
    QString translate(const char* context, const char* text, const char*, int) const override {
        asked.emplace(context, QString::fromUtf8(text));
        return QStringLiteral("⟦%1⟧").arg(QString::fromUtf8(text));
    }
    bool isEmpty() const override { return false; }

    mutable std::set<Text> asked;
};

/// The visible and accessible texts of a control.
QStringList textsOf(QWidget& control) {
    QStringList texts{control.accessibleName(), control.accessibleDescription(), control.toolTip(),
                      control.windowTitle()};
    for (const QAction* const action : control.actions())
        texts << action->text();
    if (const auto* label = qobject_cast<QLabel*>(&control)) texts << label->text();
    if (const auto* button = qobject_cast<QAbstractButton*>(&control)) texts << button->text();
    if (const auto* field = qobject_cast<QLineEdit*>(&control)) texts << field->placeholderText();
    if (auto* tree = qobject_cast<QTreeWidget*>(&control)) {
        texts << tree->headerItem()->text(0) << tree->headerItem()->text(1);
        for (QTreeWidgetItemIterator item(tree); *item; ++item)
            texts << (*item)->text(0);
    }
    return texts;
}

/// Names of formats and layers, numbers and codes of colours are the same in every language.
bool isSameEverywhere(const QString& text) {
    static const QRegularExpression letter("\\p{L}");
    static const QStringList names{"PNG", "JPEG", "TIFF", "BMP", "PDF", "Background", "1280×720"};
    return names.contains(text) || text.startsWith('#') || !text.contains(letter);
}

/// Opens everything that shows texts.
void openEverything(RunningApp& s) {
    drawStroke(s.document);
    control<IconButton>(s.window, "⟦Export⟧").click();
    command(s.window, "⟦Settings…⟧").trigger();
    command(s.window, "⟦Keyboard Shortcuts⟧").trigger();
    command(s.window, "⟦About Marlevo⟧").trigger();
    s.window.close();
    s.window.content().setShowNewCanvas(true);
    for (QMenu* const menu : s.window.findChildren<QMenu*>())
        Q_EMIT menu->aboutToShow();
}

}  // namespace

class CatalogueTests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyTextHasItsEntry() {
        const Catalogue texts = textsOfTheSources();
        QVERIFY(texts.contains({"marlevo::MenuCommands", "Save As…"}));
        QStringList faults;
        for (const QString language : languages) {
            const Catalogue entries = catalogueOf(language);
            const auto add = [&](const Text& text, const QString& found) {
                faults << language + ", " + text.first + " “" + text.second + "”: " + found;
            };
            for (const auto& [text, none] : texts) {
                const auto entry = entries.find(text);
                const QString found =
                    entry == entries.end() ? "no entry" : fault(text.second, entry->second);
                if (!found.isEmpty()) add(text, found);
            }
            for (const auto& [text, translation] : entries)
                if (!texts.contains(text)) add(text, "in no source");
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    void everyTextShownComesFromACatalogue() {
        Brackets brackets;
        qApp->installTranslator(&brackets);
        QStringList bare;
        {
            RunningApp s;
            openEverything(s);
            for (QWidget* const control : QApplication::allWidgets())
                for (const QString& text : textsOf(*control))
                    if (!text.contains(u'⟦') && !isSameEverywhere(text)) bare << text;
        }
        QVERIFY2(bare.isEmpty(), qPrintable(bare.join('\n')));

        const Catalogue texts = textsOfTheSources();
        for (const Text& text : brackets.asked)
            if (!text.first.startsWith('Q') && !texts.contains(text))
                bare << text.first + ": " + text.second;
        QVERIFY2(bare.isEmpty(),
                 qPrintable("Hidden from the catalogues' tool:\n" + bare.join('\n')));
    }

    void theWindowsAreInTheUsersLanguage() {
        for (const QString language : languages) {
            const DefaultLocale user(language);
            const Translations translations;
            RunningApp s;
            std::set<QKeySequence> mnemonics;
            for (const QAction* const menu : s.window.menuBar()->actions())
                mnemonics.insert(QKeySequence::mnemonic(menu->text()));
            QCOMPARE(mnemonics.size(), std::size_t(s.window.menuBar()->actions().size()));
            QVERIFY(!mnemonics.contains(QKeySequence()));

            const Catalogue entries = catalogueOf(language);
            const QAction& saveAs =
                command(s.window, entries.at({"marlevo::MenuCommands", "Save As…"}));
            QCOMPARE(saveAs.shortcut(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
            QCOMPARE(localizedStrokeCount(1), entries.at({"CanvasTexts", "single_stroke"}).arg(1));
        }
    }

    void thereIsOneLanguageAtATime() {
        const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
        {
            const DefaultLocale user("de_AT");
            const Translations translations;
            QCOMPARE(cancel(), "Abbrechen");
        }
        const DefaultLocale userWithoutCatalogue("it_IT");
        const Translations translations;
        QCOMPARE(localizedStrokeCount(2), "2 strokes");
        QCOMPARE(cancel(), "Cancel");
    }

private:
    struct DefaultLocale {
        explicit DefaultLocale(const QString& name) { QLocale::setDefault(QLocale(name)); }
        ~DefaultLocale() { QLocale::setDefault(before); }
        QLocale before;
    };
};

QTEST_MAIN(CatalogueTests)
#include "CatalogueTests.moc"
