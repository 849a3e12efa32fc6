// Every control in every state, for looking at while one works on it. Not installed.
// gallery [--dark] shows a window; gallery --grab FILE.png [--dark] [--scale 2] draws the same into a file, off screen.
#include "ui/controls/Buttons.h"
#include "ui/controls/FlowLayout.h"
#include "ui/controls/Labels.h"
#include "ui/controls/RatingEditor.h"
#include "ui/controls/ResizeHandle.h"
#include "ui/controls/SuggestionList.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/ToolTips.h"
#include "ui/controls/keywords/KeywordEditor.h"
#include "ui/controls/pickers/OffsetPicker.h"
#include "ui/controls/pickers/SegmentedPicker.h"
#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/SymbolText.h"
#include "ui/places/LocationSearchField.h"
#include "ui/places/MapPreview.h"
#include "ui/sidebar/ThumbnailView.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QEnterEvent>
#include <QGridLayout>
#include <QPainter>
#include <QScrollArea>
#include <QTest>
#include <QVBoxLayout>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

enum class State { normal, hover, pressed, focused, disabled };

// Draws a town, so that the map preview has something to show.
class SketchMap final : public MapRenderer {
public:
    PlaceToken render(const MapRequest& request, PlaceCallback<MapImage> answer) override
    {
        QImage image((request.size * request.devicePixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(request.devicePixelRatio);
        image.fill(request.dark ? QColor(0x33, 0x36, 0x38) : QColor(0xf1, 0xed, 0xe2));
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(request.dark ? QColor(0x2c, 0x55, 0x66) : QColor(0xa9, 0xd3, 0xe6), 6));
        painter.drawLine(QPointF(0, 80), QPointF(request.size.width(), 20));
        painter.end();
        answer({ MapImage{ image, request.kilometersAcross, u"© sketch contributors"_s }, PlaceError::none, {} });
        return {};
    }
};

// A picture of a widget, with room for its focus ring: only one widget of a window can have the focus, a gallery
// shows many.
QLabel* pictureOf(QWidget* widget, const Theme& theme, State state, QSize size = {})
{
    constexpr int room = 5;
    QWidget window;
    window.setWindowFlag(Qt::FramelessWindowHint);
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(room, room, room, room);
    layout->addWidget(widget);
    setTheme(&window, theme);
    if (size.isValid())
        widget->setFixedSize(size);
    window.setFocusPolicy(Qt::StrongFocus);
    window.show();
    window.activateWindow();
    window.setFocus();
    QApplication::processEvents();
    if (state == State::hover) {
        QEnterEvent enter(QPointF(4, 4), QPointF(4, 4), widget->mapToGlobal(QPointF(4, 4)));
        QApplication::sendEvent(widget, &enter);
    } else if (state == State::pressed) {
        QTest::mousePress(widget, Qt::LeftButton);
    } else if (state == State::focused) {
        widget->setFocus(Qt::TabFocusReason);
    } else if (state == State::disabled) {
        widget->setEnabled(false);
    }
    QApplication::processEvents();
    auto* label = new QLabel;
    label->setPixmap(window.grab());
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return label;
}

// One page of the gallery under one theme.
class Page final : public QWidget {
public:
    explicit Page(const Theme& theme)
        : m_theme(theme)
        , m_grid(new QGridLayout(this))
    {
        setTheme(this, theme);
        setAutoFillBackground(true);
        m_grid->setContentsMargins(36, 24, 36, 24);
        m_grid->setHorizontalSpacing(12);
        m_grid->setVerticalSpacing(2);
        m_grid->setColumnMinimumWidth(0, 90);
        for (int column = 1; column <= 6; ++column)
            m_grid->setColumnMinimumWidth(column, 166);
        buttons();
        marks();
        fields();
        keywords();
        headings();
        menus();
        setFixedWidth(1180);
    }

private:
    template <typename Make>
    void row(const QString& name, const QList<State>& states, Make make, QSize size = {})
    {
        ++m_row;
        m_grid->addWidget(new ThemedLabel(name, TextRole::label, 12), m_row, 0);
        int column = 1;
        for (const State state : states)
            m_grid->addWidget(pictureOf(make(), m_theme, state, size), m_row, column++, Qt::AlignLeft);
    }

    void title(const QString& name)
    {
        ++m_row;
        m_grid->setRowMinimumHeight(m_row, 40);
        m_grid->addWidget(new SectionHeader(name), m_row, 0, 1, 7, Qt::AlignBottom);
    }

    void put(QWidget* widget, int column, int span = 1)
    {
        m_grid->addWidget(widget, m_row, column, 1, span, Qt::AlignLeft | Qt::AlignTop);
    }

    static QList<State> allStates()
    {
        return { State::normal, State::hover, State::pressed, State::focused, State::disabled };
    }

    void buttons()
    {
        title(u"BUTTONS — normal, hover, pressed, focus, disabled"_s);
        row(u"Primary"_s, allStates(), [] { return new QBButton(u"Save"_s, QBButtonKind::primary); });
        row(u"Secondary"_s, allStates(), [] { return new QBButton(u"Rename…"_s, QBButtonKind::secondary); });
        row(u"Dashed"_s, allStates(), [] { return new QBButton(u"Add field"_s, QBButtonKind::dashed); });
        row(u"Destructive"_s, allStates(), [] { return new QBButton(u"Don't Save"_s, QBButtonKind::destructive); });
        row(u"Toolbar icon"_s, allStates(), [] { return new QBIconButton(u"arrow.clockwise"_s, u"Refresh folder"_s); });
        row(u"Text button"_s, allStates(), [] {
            auto* button = new QBTextButton(u"Select all"_s);
            button->setKeyHint(symbolText(u"⌘A"_s));
            return button;
        });
        row(u"Link"_s, allStates(), [] {
            auto* button = new QBTextButton(u"Fill place from coordinates"_s);
            button->setLink(true);
            return button;
        });
        row(u"Token chip"_s, allStates(), [] { return new TokenChip(u"Date taken"_s); });
    }

    void marks()
    {
        title(u"MARKS — normal, hover, pressed, focus, disabled"_s);
        for (const bool on : { false, true }) {
            row(on ? u"Checked"_s : u"Check box"_s, allStates(), [on] {
                auto* box = new QBCheckbox(u"Title"_s, nullptr);
                box->setChecked(on);
                return box;
            });
        }
        row(u"Amber"_s, allStates(), [] {
            auto* box = new QBCheckbox;
            box->setAmber(true);
            box->setChecked(true);
            return box;
        });
        for (const bool on : { false, true }) {
            row(on ? u"Switch, on"_s : u"Switch"_s, { State::normal, State::hover, State::focused, State::disabled },
                [on] {
                    auto* box = new QBSwitch;
                    box->setChecked(on);
                    return box;
                });
        }
        for (const bool edited : { false, true }) {
            row(edited ? u"Rating, edited"_s : u"Rating"_s, { State::normal, State::focused, State::disabled },
                [edited] {
                    auto* rating = new RatingEditor;
                    rating->setValue(u"4"_s);
                    rating->setEdited(edited);
                    return rating;
                });
        }
        ++m_row;
        int column = 1;
        for (const State state : { State::normal, State::focused, State::disabled }) {
            auto* picker = new SegmentedPicker({ u"System"_s, u"Light"_s, u"Dark"_s });
            put(pictureOf(picker, m_theme, state), column, 2);
            column += 2;
        }
    }

    void fields()
    {
        const QList<State> states{ State::normal, State::hover, State::focused, State::disabled };
        for (const bool edited : { false, true }) {
            title(edited ? u"FIELDS, EDITED"_s : u"FIELDS — normal, hover, focus, disabled"_s);
            const auto field = [edited](const QString& text, const QString& placeholder) {
                auto* made = new QBTextField;
                made->setBoundText(text);
                made->setPlaceholder(placeholder);
                made->setEdited(edited);
                return made;
            };
            row(u"Text"_s, states, [field] { return field(u"Zürich"_s, {}); }, { 150, 30 });
            row(u"Placeholder"_s, states, [field] { return field({}, u"Add a place…"_s); }, { 150, 30 });
            row(u"Date"_s, states,
                [field] {
                    QBTextField* made = field(u"2024-10-12 17:48"_s, {});
                    made->setMono(true);
                    return made;
                },
                { 150, 30 });
            row(u"Text area"_s, states, [edited] {
                auto* area = new QBTextArea;
                area->setFixedWidth(150);
                area->setBoundText(u"Still water after a clear October day"_s);
                area->setEdited(edited);
                return area;
            });
            row(u"Offset"_s, states, [edited] {
                auto* picker = new OffsetPicker({ u"+00:00"_s, u"+01:00"_s, u"+02:00"_s }, u"—"_s);
                picker->setValue(u"+02:00"_s);
                picker->setEdited(edited);
                return picker;
            });
        }
        row(u"Several"_s, states,
            [] {
                auto* made = new QBTextField;
                made->setPlaceholder(u"Multiple values — leave unchanged"_s, true);
                return made;
            },
            { 150, 30 });
        row(u"Search"_s, states,
            [] {
                auto* made = new QBTextField;
                made->setLeadingIcon(u"magnifyingglass"_s);
                made->setPlaceholder(u"Search"_s);
                return made;
            },
            { 150, 30 });
    }

    QWidget* keywordEditor(const QStringList& chips, bool amber, bool edited)
    {
        auto* editor = new KeywordEditor;
        editor->setFixedWidth(410);
        editor->setChips(chips);
        editor->setAmber(amber);
        editor->setEdited(edited);
        editor->setPlaceholder(amber ? u"Add to all + ↵"_s : u"Add keyword + ↵"_s);
        return editor;
    }

    void keywords()
    {
        title(u"KEYWORDS — one photo, several photos, focus and wrapped, edited"_s);
        const QStringList few{ u"lake"_s, u"autumn"_s, u"evening"_s };
        const QStringList many{ u"lake"_s, u"autumn"_s, u"evening"_s, u"reed bank"_s, u"still water"_s, u"October"_s };
        const QStringList wide{ u"lake"_s,
            u"a keyword so long that it does not fit into the width of the editor it was put into, by someone"_s };
        ++m_row;
        put(pictureOf(keywordEditor(few, false, false), m_theme, State::normal), 0, 3);
        put(pictureOf(keywordEditor(few, true, false), m_theme, State::normal), 4, 3);
        ++m_row;
        put(pictureOf(keywordEditor(many, false, false), m_theme, State::focused), 0, 3);
        put(pictureOf(keywordEditor(few, false, true), m_theme, State::normal), 4, 3);
        ++m_row;
        put(pictureOf(keywordEditor(wide, false, false), m_theme, State::normal), 0, 3);
        put(pictureOf(keywordEditor({}, false, false), m_theme, State::disabled), 4, 3);
    }

    void headings()
    {
        title(u"HEADINGS, MAP, THUMBNAILS, HANDLE"_s);
        ++m_row;
        auto* left = new QWidget;
        left->setFixedWidth(420);
        auto* lines = new QVBoxLayout(left);
        lines->setContentsMargins(0, 0, 0, 0);
        lines->setSpacing(12);
        lines->addWidget(new SectionHeader(u"COMMON"_s));
        lines->addWidget(new SectionHeader(u"CAMERA"_s, true, u"read-only"_s));
        lines->addWidget(new LabeledDivider(u"RECOMMENDED · WORKS EVERYWHERE"_s));
        lines->addWidget(new LabeledDivider(u"ADVANCED · CUSTOM FIELD"_s, true, u"may not appear in all apps"_s));
        auto* map = new MapPreview(&m_map);
        map->setPoint({ 47.3769, 8.5417 });
        lines->addWidget(map);
        auto* plain = new MapPreview(nullptr);
        plain->setPoint({ 47.3769, 8.5417 });
        lines->addWidget(plain);
        put(left, 0, 3);
        auto* right = new QWidget;
        auto* columns = new QHBoxLayout(right);
        columns->addWidget(new ThumbnailView(nullptr, 42, 7));
        columns->addWidget(new ThumbnailView(nullptr, 60, 9));
        columns->addWidget(pictureOf(new ResizeHandle(288, 200, 420, 288), m_theme, State::normal, { 7, 60 }));
        columns->addWidget(pictureOf(new ResizeHandle(288, 200, 420, 288), m_theme, State::hover, { 7, 60 }));
        columns->addWidget(pictureOf(new ResizeHandle(288, 200, 420, 288), m_theme, State::focused, { 7, 60 }));
        put(right, 4, 3);
        icons();
    }

    void icons()
    {
        ++m_row;
        auto* line = new QWidget;
        auto* layout = new QHBoxLayout(line);
        layout->setContentsMargins(0, 0, 0, 0);
        for (const QString& name :
            { u"arrow.clockwise"_s, u"arrow.up.arrow.down"_s, u"checkmark"_s, u"chevron.down"_s, u"chevron.right"_s,
                u"chevron.up.chevron.down"_s, u"clock"_s, u"doc"_s, u"ellipsis"_s, u"exclamationmark.triangle.fill"_s,
                u"externaldrive"_s, u"folder"_s, u"gearshape"_s, u"magnifyingglass"_s, u"map"_s, u"mappin"_s,
                u"pencil"_s, u"photo"_s, u"plus"_s, u"questionmark.circle"_s, u"rectangle.split.2x1"_s,
                u"sidebar.left"_s, u"sparkles"_s, u"square.stack.3d.up"_s, u"star"_s, u"star.fill"_s, u"tag"_s,
                u"textformat"_s, u"xmark"_s, u"xmark.circle.fill"_s }) {
            auto* icon = new QLabel;
            icon->setToolTip(name);
            icon->setPixmap(Icon::pixmap(name, 18, m_theme.derived.label, qApp->devicePixelRatio()));
            layout->addWidget(icon);
        }
        put(line, 0, 7);
    }

    QLabel* pictureOfMenu()
    {
        QWidget owner;
        setTheme(&owner, m_theme);
        ThemedMenu menu(&owner);
        menu.addHeader(u"Sort by"_s);
        for (const QString& name : { u"Name (A–Z)"_s, u"Name (Z–A)"_s, u"Date (newest first)"_s }) {
            QAction* action = menu.addAction(name);
            action->setCheckable(true);
            action->setChecked(name.contains(u"Z–A"_s));
        }
        menu.actions().at(2)->setEnabled(true);
        menu.addSeparator();
        menu.addAction(u"Open…"_s)->setShortcut(QKeySequence::Open);
        menu.addThemedMenu(u"Open Recent"_s);
        menu.addAction(u"Disabled"_s)->setEnabled(false);
        menu.popup(QPoint(0, 0));
        menu.setActiveAction(menu.actions().at(3));
        QApplication::processEvents();
        auto* label = new QLabel;
        label->setPixmap(menu.grab());
        return label;
    }

    QLabel* pictureOfSuggestions(const QString& message)
    {
        QWidget window;
        setTheme(&window, m_theme);
        window.resize(380, 220);
        auto* field = new QBTextField(&window);
        field->setGeometry(20, 10, 330, 30);
        auto* list = new SuggestionList(field);
        window.show();
        if (message.isEmpty()) {
            list->showRows({ { u"Zürich"_s, u"Switzerland"_s }, { u"Zürich Altstetten"_s, u"Zürich, Switzerland"_s },
                { u"Zürichberg"_s, u"Zürich, Switzerland"_s } });
            list->setCurrentRow(1);
        } else {
            list->showMessage(message);
        }
        QApplication::processEvents();
        auto* label = new QLabel;
        label->setPixmap(window.grab());
        return label;
    }

    void menus()
    {
        title(u"MENUS AND SUGGESTIONS"_s);
        ++m_row;
        put(pictureOfMenu(), 0, 2);
        put(pictureOfSuggestions({}), 2, 3);
        ++m_row;
        put(pictureOfSuggestions(u"Couldn't look that up"_s), 2, 3);
    }

    const Theme& m_theme;
    QGridLayout* m_grid;
    SketchMap m_map;
    int m_row = -1;
};

int grab(Page& page, const QString& file)
{
    page.show();
    page.adjustSize();
    QApplication::processEvents();
    if (!page.grab().save(file)) {
        qCritical("cannot write %s", qUtf8Printable(file));
        return 1;
    }
    return 0;
}

}  // namespace

int main(int argc, char* argv[])
{
    // Both must be known before the application object exists.
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--grab") == 0) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
            qputenv("QUORBEL_REDUCE_MOTION", "1");
        }
        if (qstrcmp(argv[i], "--scale") == 0 && i + 1 < argc)
            qputenv("QT_SCALE_FACTOR", argv[i + 1]);
    }
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions(
        { { u"grab"_s, u"Draw into a file instead of a window."_s, u"file"_s }, { u"dark"_s, u"The dark palette."_s },
            { u"contrast"_s, u"The palette of high contrast."_s }, { u"mirrored"_s, u"As read from right to left."_s },
            { u"scale"_s, u"Device pixels per point."_s, u"factor"_s } });
    parser.process(app);
    ToolTips toolTips;
    const bool dark = parser.isSet(u"dark"_s);
    if (parser.isSet(u"mirrored"_s))
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const Theme& plain = dark ? Theme::dark() : Theme::light();
    Page page(parser.isSet(u"contrast"_s) ? HighContrast::palette(dark) : plain);
    if (parser.isSet(u"grab"_s))
        return grab(page, parser.value(u"grab"_s));
    QScrollArea window;
    window.setWidget(&page);
    OverlayScrollBar::attach(&window);
    window.resize(1160, 900);
    window.show();
    const int status = QApplication::exec();
    window.takeWidget();
    return status;
}
