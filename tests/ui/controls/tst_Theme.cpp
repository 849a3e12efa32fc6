#include "tests/support/Rows.h"
#include "tests/ui/UiSupport.h"
#include "ui/controls/Labels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/theme/AnimatedValue.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/SymbolText.h"
#include "ui/controls/theme/TextLines.h"
#include "ui/controls/theme/VerbatimFonts.h"

#include <QDir>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

QList<std::pair<const char*, const Theme*>> palettes()
{
    return { { "light", &Theme::light() }, { "dark", &Theme::dark() },
        { "high contrast", &HighContrast::palette(false) }, { "high contrast, dark", &HighContrast::palette(true) } };
}

// What is seen of a translucent colour.
QColor onGround(const QColor& color, const QColor& ground)
{
    return mixed(ground, withAlpha(color, 1), color.alphaF());
}

}  // namespace

class tst_Theme : public QObject {
    Q_OBJECT

private slots:
    void init() { Test::failOnWarnings(); }

    void readableContrast_data()
    {
        QTest::addColumn<QColor>("ink");
        QTest::addColumn<QColor>("ground");
        QTest::addColumn<qreal>("atLeast");
        for (const auto& [name, theme] : palettes()) {
            const Theme& t = *theme;
            const bool strong = HighContrast::isOn(t);
            const auto row = [&, name = name](
                                 const char* what, const QColor& ink, const QColor& ground, qreal atLeast) {
                QTest::addRow("%s: %s", name, what) << onGround(ink, t.panel) << onGround(ground, t.panel) << atLeast;
            };
            const qreal most = strong ? 7 : 4.5;
            row("text on the window", t.text, t.bg, 7);
            row("text on panels", t.text, t.panel, 7);
            row("text on title bars", t.text, t.titlebar, 7);
            row("text in fields", t.text, t.field, 7);
            row("text in edited fields", t.text, t.amberBg, 7);
            row("text on a selected row", t.selText, t.sel, 7);
            row("text on a primary button", t.accentText, t.accent, 7);
            row("text on a hovered primary button", t.accentText, t.derived.primaryHover, 7);
            row("text on a pressed primary button", t.accentText, t.derived.primaryPressed, 7);
            row("text on a chip", t.text, t.chip, 7);
            row("text on a hovered row", t.text, t.derived.rowHover, 7);
            row("text on a pressed ground", t.text, t.derived.pressed, 7);
            row("text on a pressed button", t.text, t.derived.secondaryPressed, 7);
            row("labels on panels", t.derived.label, t.panel, most);
            row("labels on title bars", t.derived.label, t.titlebar, most);
            row("labels on a hovered ground", t.derived.label, t.derived.hover, most);
            row("help lines on panels", t.derived.amberText, t.panel, most);
            row("help lines on amber", t.derived.amberText, t.amberBg, most);
            row("destructive button on panels", t.derived.destructive, t.panel, most);
            // The design's own greys: what must be read is `label`.
            row("secondary text on the window", t.muted, t.bg, strong ? 7 : 3);
            row("secondary text on panels", t.muted, t.panel, strong ? 7 : 3);
            row("secondary text in fields", t.muted, t.field, strong ? 7 : 3);
            row("secondary text on a selected row", t.selSub, t.sel, strong ? 7 : 4);
            row("focus ring on panels", t.derived.focusStrong, t.panel, 3);
            row("focus ring on fields", t.derived.focusStrong, t.field, 3);
            row("amber check box on panels", t.amber, t.panel, 3);
            row("progress on its track", t.accent, t.derived.track, 3);
            if (!strong)
                continue;
            row("disabled text", withAlpha(t.text, HighContrast::disabledOpacity(t)), t.panel, 4.5);
            row("disabled primary button", t.derived.primaryOffText, t.derived.primaryOff, 4.5);
            row("border of fields", t.fieldLine, t.panel, 3);
            row("border of buttons", t.btnLine, t.panel, 3);
            row("border of what is wanted", t.derived.dashedLine, t.panel, 3);
            row("border of edited fields", t.amberLine, t.panel, 3);
            row("border of chips", t.derived.chipLine, t.panel, 3);
            row("lines between parts", t.line, t.panel, 3);
            row("ring of fields", t.derived.ring, t.panel, 3);
            row("progress track", t.derived.track, t.panel, 3);
            row("scroll bar", t.scroll, t.panel, 3);
            row("switch that is off", t.scroll, t.panel, 3);
        }
    }
    void readableContrast()
    {
        QFETCH(QColor, ink);
        QFETCH(QColor, ground);
        QFETCH(qreal, atLeast);
        const qreal ratio = Test::contrast(ink, ground);
        QVERIFY2(ratio >= atLeast, qPrintable(QString::number(ratio)));
    }

    void hexColors_data()
    {
        Test::addRows(
            { { u"9a7a1c"_s, u"#ff9a7a1c"_s }, { u"000000"_s, u"#ff000000"_s }, { u"0000ff"_s, u"#ff0000ff"_s } });
    }
    void hexColors()
    {
        QFETCH(QString, text);
        QTEST(colorFromHex(text).name(QColor::HexArgb), "expected");
    }

    void everyRoleIsSetInAllPalettes()
    {
        // A role that a table forgot is an invalid colour, and is drawn black.
        for (const auto& [name, theme] : palettes()) {
            for (const QColor& color : { theme->bg, theme->panel, theme->titlebar, theme->text, theme->muted,
                     theme->line, theme->hair, theme->field, theme->fieldLine, theme->sel, theme->selText,
                     theme->selSub, theme->accent, theme->accentText, theme->btn, theme->btnLine, theme->amber,
                     theme->amberBg, theme->amberLine, theme->scroll, theme->focus, theme->chip, theme->previewBg }) {
                QVERIFY(color.isValid());
                QCOMPARE(color.alpha(), 255);
            }
            QVERIFY(theme->shadow.alpha() > 0 && theme->shadow.alpha() < 128);
        }
    }

    void widgetsTakeTheThemeOfTheirWindow()
    {
        QCOMPARE(Theme::of(nullptr), Theme::light());
        QWidget window;
        auto* panel = new QWidget(&window);
        auto* field = new QBTextField(panel);
        QCOMPARE(Theme::of(field), Theme::light());
        setTheme(&window, Theme::dark());
        QCOMPARE(Theme::of(field), Theme::dark());
        setTheme(panel, Theme::light());
        QCOMPARE(Theme::of(field), Theme::light());
        QCOMPARE(Theme::of(&window), Theme::dark());
    }

    void aChangeRepaintsWhatIsOnScreen()
    {
        Test::Stage stage;
        auto* field = stage.add(new QBTextField);
        auto* label = stage.add(new ThemedLabel(u"█████"_s));
        stage.show();
        QCOMPARE(Test::colorAt(field, { 100, 15 }), Theme::light().field);
        setTheme(stage.window(), Theme::dark());
        QCOMPARE(Test::colorAt(field, { 100, 15 }), Theme::dark().field);
        QVERIFY(Test::pixelsLike(label->grab().toImage(), Theme::dark().text) > 20);
    }

    void aWidgetBuiltOutsideItsWindowIsRestyledThere()
    {
        auto* label = new ThemedLabel(u"█████"_s);
        Test::Stage stage(Theme::dark());
        stage.add(label);
        stage.show();
        QVERIFY(Test::pixelsLike(label->grab().toImage(), Theme::dark().text) > 20);
    }

    void sizesFollowTheDesktopsFont()
    {
        const QFont before = QApplication::font();
        const auto restore = qScopeGuard([&] { QApplication::setFont(before); });
        QFont font = before;
        font.setPixelSize(13);
        QApplication::setFont(font);
        QCOMPARE(px(30), 30);
        QBTextField field;
        QCOMPARE(field.sizeHint().height(), 30);
        font.setPixelSize(22);
        QApplication::setFont(font);
        QCOMPARE(px(30), 45);
        QCOMPARE(field.sizeHint().height(), 45);
        QTRY_COMPARE(field.font().pixelSize(), px(13));
    }

    void namesAreDrawnLetterByLetter_data()
    {
        QTest::addColumn<bool>("mono");
        for (const bool mono : { false, true })
            for (const QString& text : { u"1x1_a.jpg"_s, u"12:30"_s, u"a->b"_s, u"x != y"_s, u"(A-B)"_s, u"office"_s })
                QTest::addRow("%s, %s", qPrintable(text), mono ? "fixed" : "proportional") << mono;
    }
    void namesAreDrawnLetterByLetter()
    {
        QFETCH(bool, mono);
        const QString text = QString::fromUtf8(QTest::currentDataTag()).section(u',', 0, 0);
        QVERIFY(!Test::isAltered(text, mono ? verbatimMonoFont(13) : verbatimFont(13)));
        QVERIFY(!Test::isAltered(text, mono ? verbatimMonoFont(11) : verbatimFont(15, QFont::DemiBold)));
    }

    void aVerbatimFontDiffersInNothingElse_data()
    {
        QTest::addColumn<QString>("text");
        for (const QString& text : { u"AVATo"_s, u"Zürich 2024"_s, u"Ze\u0301a"_s, u"مرحبا"_s, u"ὕδωρ"_s, u"東京"_s })
            QTest::newRow(qPrintable(text)) << text;
    }
    void aVerbatimFontDiffersInNothingElse()
    {
        QFETCH(QString, text);
        const auto picture = [&](const QFont& font) {
            QLabel label(text);
            label.setFont(font);
            label.resize(200, 30);
            return label.grab().toImage();
        };
        QVERIFY(picture(verbatimFont(13)) == picture(sansFont(13)));
        QVERIFY(picture(verbatimFont(15, QFont::DemiBold)) == picture(sansFont(15, QFont::DemiBold)));
        QVERIFY(picture(verbatimMonoFont(13)) == picture(monoFont(13)));
        QVERIFY(picture(sansFont(13)) != picture(sansFont(15)));
    }

    void aDamagedFontTableIsLeftInItsSize()
    {
        const QByteArray whole = QRawFont::fromFont(sansFont(13)).fontTable("GSUB");
        const QByteArray thinned = VerbatimFonts::withoutOptionalSubstitutions(whole);
        QCOMPARE(thinned.size(), whole.size());
        QCOMPARE(VerbatimFonts::withoutOptionalSubstitutions(thinned), thinned);
        for (qsizetype size = 0; size < qMin<qsizetype>(whole.size(), 500); ++size) {
            QCOMPARE(VerbatimFonts::withoutOptionalSubstitutions(whole.left(size)).size(), size);
            QByteArray damaged = whole;
            damaged[size] = char(~damaged.at(size));
            QCOMPARE(VerbatimFonts::withoutOptionalSubstitutions(damaged).size(), whole.size());
        }
    }

    void motionIsSeenUnlessItIsUnwanted_data()
    {
        QTest::addColumn<bool>("reduced");
        QTest::addColumn<bool>("shown");
        QTest::newRow("on screen") << false << true;
        QTest::newRow("no motion asked for") << true << true;
        QTest::newRow("not on screen") << false << false;
    }
    void motionIsSeenUnlessItIsUnwanted()
    {
        QFETCH(bool, reduced);
        QFETCH(bool, shown);
        Test::Stage stage;
        if (shown)
            stage.show();
        qputenv("QUORBEL_REDUCE_MOTION", reduced ? "1" : "0");
        QList<qreal> seen;
        int arrivals = 0;
        AnimatedValue value(stage.window(), 60, QEasingCurve::Linear, [&] { seen.append(value.value()); });
        value.moveTo(1, [&] { ++arrivals; });
        QTRY_COMPARE(arrivals, 1);
        QCOMPARE(seen.last(), 1);
        QCOMPARE(seen.size() > 1, shown && !reduced);
    }

    void aMotionThatIsTurnedRoundDoesNotArrive()
    {
        Test::Stage stage;
        stage.show();
        qputenv("QUORBEL_REDUCE_MOTION", "0");
        QStringList arrivals;
        AnimatedValue value(stage.window(), 60);
        value.moveTo(1, [&] { arrivals.append(u"there"_s); });
        QTRY_VERIFY(value.value() > 0);
        value.moveTo(0, [&] { arrivals.append(u"back"_s); });
        QTRY_COMPARE(value.value(), 0);
        QTest::qWait(80);
        QCOMPARE(arrivals, QStringList(u"back"_s));
    }

    void textIsBrokenWhereItMayBe_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<LineBreaks>("breaks");
        QTest::addColumn<int>("most");
        QTest::addColumn<QStringList>("lines");
        // Eight letters wide.
        const QString tag = u"XMP-dc:title IPTC"_s;
        QTest::newRow("words") << u"aaaa bbbb cccc"_s << LineBreaks::words << 9
                               << QStringList{ u"aaaa"_s, u"bbbb"_s, u"cccc"_s };
        QTest::newRow("a word too long") << u"aaaaaaaabb"_s << LineBreaks::words << 9
                                         << QStringList{ u"aaaaaaaa"_s, u"bb"_s };
        QTest::newRow("the last takes the rest")
            << u"aaaa bbbb cccc"_s << LineBreaks::words << 2 << QStringList{ u"aaaa"_s, u"bbbb cccc"_s };
        QTest::newRow("a tag stays whole")
            << tag << LineBreaks::spaces << 9 << QStringList{ u"XMP-dc:title"_s, u"IPTC"_s };
        QTest::newRow("anywhere") << u"aaaa bbbbcc"_s << LineBreaks::anywhere << 9
                                  << QStringList{ u"aaaa bbb"_s, u"bcc"_s };
        QTest::newRow("nothing") << QString() << LineBreaks::spaces << 9 << QStringList{ QString() };
    }
    void textIsBrokenWhereItMayBe()
    {
        QFETCH(QString, text);
        QFETCH(LineBreaks, breaks);
        QFETCH(int, most);
        const QFont font = monoFont(13);
        const int width = QFontMetrics(font).horizontalAdvance(u"aaaaaaaa"_s) + 4;  // and less than another letter
        QTEST(brokenIntoLines(text, font, width, breaks, most), "lines");
    }

    void scriptsWithoutSpacesAreBrokenToo_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("Japanese") << u"画像を見られない人のために、XMP-dc:title に写っているものを書く。"_s;
        QTest::newRow("Chinese") << u"为看不到图片的人说明画面内容，写入XMP-dc:title，不超过二百五十个字符。"_s;
    }
    void scriptsWithoutSpacesAreBrokenToo()
    {
        QFETCH(QString, text);
        const QFont font = sansFont(13);
        const QFontMetrics metrics(font);
        const int width = metrics.horizontalAdvance(text) / 3 + 8;
        const QStringList lines = brokenIntoLines(text, font, width, LineBreaks::spaces);
        QCOMPARE(lines.join(QString()).remove(u' '), QString(text).remove(u' '));
        QVERIFY(lines.size() > 2);
        QCOMPARE(lines.filter(u"XMP-dc:title"_s).size(), 1);
        for (const QString& line : lines) {
            QVERIFY2(metrics.horizontalAdvance(line) <= width, qPrintable(line));
            QVERIFY2(!u"、。，"_s.contains(line.front()), qPrintable(line));
        }
    }

    void noCharacterIsCutInTwo()
    {
        QCOMPARE(brokenIntoLines(u"😀😀"_s, monoFont(13), 1, LineBreaks::anywhere),
            (QStringList{ QString(), u"😀"_s, u"😀"_s }));
    }

    void symbolTexts_data()
    {
        Test::addRows({
            { u"Select all ⌘A"_s, u"Select all Ctrl+A"_s },
            { u"Use ⌘A to select all, or ⇧/⌘-click to build a selection."_s,
                u"Use Ctrl+A to select all, or Shift/Ctrl-click to build a selection."_s },
            { u"Open Settings from the Quorbel menu (⌘,) to adjust:"_s,
                u"Open Settings from the Quorbel menu (Ctrl+,) to adjust:"_s },
            { u"⇧⌘S, ⌥⌘O"_s, u"Shift+Ctrl+S, Alt+Ctrl+O"_s },
            { u"Right-click a photo in Finder and choose Open With ▸ Quorbel."_s,
                u"Right-click a photo in your file manager and choose Open With ▸ Quorbel."_s },
            { u"“Café” — 100 %…"_s, u"“Café” — 100 %…"_s },
        });
    }
    void symbolTexts()
    {
        QFETCH(QString, text);
        QTEST(symbolText(text), "expected");
    }

    void everyIconDrawsInItsColor()
    {
        const QStringList files = QDir(u":/icons"_s).entryList();
        QVERIFY(files.size() >= 21);
        for (const QString& file : files) {
            const QString name = file.chopped(4);
            const QPixmap icon = Icon::pixmap(name, 18, Qt::red, 2);
            QCOMPARE(icon.size(), QSize(36, 36));
            QVERIFY2(Test::pixelsLike(icon.toImage(), Qt::red) > 20, qPrintable(name));
        }
        QVERIFY(Icon::pixmap(u"no.such.icon"_s, 18, Qt::red, 1).isNull());
    }
};

QTEST_MAIN(tst_Theme)
#include "tst_Theme.moc"
