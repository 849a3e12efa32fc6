#include "ui/window/SettingsView.h"

#include "app/model/AppModel.h"
#include "app/model/words/CodeReplacements.h"
#include "core/language/Texts.h"
#include "platform/places/search/PlaceProvider.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/Labels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/pickers/ChoicePicker.h"
#include "ui/controls/pickers/SegmentedPicker.h"
#include "ui/controls/scrolling/ScrollArea.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"
#include "ui/window/ChoiceRow.h"
#include "ui/window/CodeFileRow.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr QSize windowSize{ 460, 320 };
constexpr qreal sidePadding = 20;
constexpr qreal groupRadius = 9;
constexpr qreal rowHeight = 40;
constexpr qreal fieldRowHeight = 44;
constexpr qreal patternWidth = 216;
constexpr qreal languageWidth = 160;

// A white box with rows, lines between them.
class Group final : public QWidget {
public:
    Group()
        : m_rows(new QVBoxLayout(this))
    {
        m_rows->setContentsMargins(0, 0, 0, 0);
        m_rows->setSpacing(1);
    }

    // A control with its name at the left, and a help line under both unless that is empty.
    void addRow(const QString& name, QWidget* control, const QString& help = {})
    {
        auto* row = new QWidget;
        auto* column = new QVBoxLayout(row);
        column->setSpacing(0);
        auto* top = new QWidget;
        auto* line = new QHBoxLayout(top);
        line->addWidget(new ThemedLabel(name));
        line->addStretch();
        line->addWidget(control);
        column->addWidget(top);
        control->setAccessibleName(name);
        control->setAccessibleDescription(help);
        ThemedLabel* note = nullptr;
        if (!help.isEmpty()) {
            note = ThemedLabel::wrapped(help, TextRole::label, 11.5);
            column->addWidget(note);
        }
        const bool isField = qobject_cast<QLineEdit*>(control);
        onRestyle(row, [=] {
            column->setContentsMargins(mirrored(QMargins(px(14), 0, px(12), note ? px(10) : 0)));
            line->setContentsMargins(0, px(note ? 4 : 0), 0, 0);
            line->setSpacing(px(16));
            // With a note the line gives up the room below its text.
            top->setFixedHeight(px(isField ? fieldRowHeight : note ? rowHeight - 4 : rowHeight));
            if (note)
                note->setContentsMargins(mirrored(QMargins(0, px(isField ? 2 : 0), px(isField ? 0 : 52), 0)));
        });
        m_rows->addWidget(row);
    }

    // One that lays itself out.
    void addRow(QWidget* row) { m_rows->addWidget(row); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = Theme::of(this);
        DirectedPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(theme.line);
        painter.setBrush(theme.field);
        painter.drawRoundedRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5), pxF(groupRadius), pxF(groupRadius));
        for (int i = 1; i < m_rows->count(); ++i)
            painter.fillRect(1, m_rows->itemAt(i)->geometry().top() - 1, width() - 2, 1, theme.line);
    }

private:
    QVBoxLayout* m_rows;
};

Group* addGroup(QVBoxLayout* column, const QString& title)
{
    auto* heading = new ThemedLabel(title, TextRole::label, 12, QFont::DemiBold);
    onRestyle(heading, [heading, first = column->isEmpty()] {
        heading->setContentsMargins(mirrored(QMargins(px(2), first ? 0 : px(14), 0, px(6))));
    });
    column->addWidget(heading);
    auto* group = new Group;
    group->setAccessibleName(title);
    column->addWidget(group);
    return group;
}

// In the order of the picker; nothing: as the desktop asks.
constexpr std::optional<ColorScheme> schemes[]{ std::nullopt, ColorScheme::light, ColorScheme::dark,
    ColorScheme::highContrast };

int indexOf(std::optional<ColorScheme> scheme)
{
    return int(std::find(std::cbegin(schemes), std::cend(schemes), scheme) - std::cbegin(schemes));
}

}  // namespace

SettingsView::SettingsView(AppModel& model, QList<Languages::Language> languages, QWidget* parent)
    : SideWindow(Texts::tr("Settings"), parent)
    , m_model(model)
    , m_languages(std::move(languages))
{
    describeAs(staticMetaObject, QAccessible::Dialog);
    auto* area = new ScrollArea;
    area->setFocusPolicy(Qt::NoFocus);
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setSpacing(0);
    addDisplay(column);
    addSaving(column);
    addRenaming(column);
    addRawFiles(column);
    addPlaces(column);
    addCodes(column);
    column->addStretch();
    area->setContent(page);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(area);
    onRestyle(this, [this, column] {
        column->setContentsMargins(px(sidePadding), px(14), px(sidePadding), px(14));
        setMinimumSize(leastWindow(windowSize));
    });
    setFocus();  // nothing looks chosen before anybody chose it
}

QSize SettingsView::sizeHint() const
{
    return { px(windowSize.width()), px(windowSize.height()) };
}

void SettingsView::addDisplay(QVBoxLayout* column)
{
    Group* group = addGroup(column, Texts::tr("Display", "heading of settings"));
    group->addRow(Texts::tr("Appearance"), appearancePicker());
    group->addRow(Texts::tr("Language"), languagePicker(), Texts::tr("Takes effect at the next start."));
    group->addRow(Texts::tr("Show namespace details"),
        toggle(Texts::tr("Show namespace details"), m_model.preferences().showNamespace),
        Texts::tr("Adds the source tags (EXIF / IPTC / XMP) under each field."));
}

void SettingsView::addSaving(QVBoxLayout* column)
{
    Group* group = addGroup(column, Texts::tr("Saving", "heading of settings"));
    group->addRow(Texts::tr("Back up original before writing"),
        toggle(Texts::tr("Back up original before writing"), m_model.preferences().backupOriginals));
    group->addRow(Texts::tr("Confirm before mass-applying to multiple files"),
        toggle(Texts::tr("Confirm before mass-applying to multiple files"), m_model.preferences().confirmMassEdit));
    group->addRow(Texts::tr("Also write a sidecar .xmp file"),
        toggle(Texts::tr("Also write a sidecar .xmp file"), m_model.preferences().writeSidecar),
        //: <name> stands for the image's own.
        Texts::tr("Mirrors XMP metadata into <name>.xmp next to each image."));
}

void SettingsView::addRenaming(QVBoxLayout* column)
{
    Group* group = addGroup(column, Texts::tr("Renaming", "heading of settings"));
    group->addRow(Texts::tr("Filename pattern"), patternField(),
        //: What stands between two % signs is typed like this in every language.
        Texts::tr("Tokens: %Date% %Time% %Title% %Creator% %Place% %Original%. The extension is kept "
                  "automatically."));
    group->addRow(Texts::tr("Strip special characters"),
        toggle(Texts::tr("Strip special characters"), m_model.preferences().stripSpecialChars),
        Texts::tr("Keeps only letters and numbers (accents become plain, e.g. Café → Cafe). Off leaves "
                  "characters like @ and ' in place."));
}

void SettingsView::addRawFiles(QVBoxLayout* column)
{
    Group* group = addGroup(column, Texts::tr("Raw files"));
    group->addRow(homeRow(Texts::tr("Edits of raw photos"), m_model.preferences().rawBeside,
        Texts::tr("Edits are written into the raw file, as into other photos."),
        Texts::tr("The raw file stays untouched. Other programs find the words in the sidecar.")));
    group->addRow(homeRow(Texts::tr("Edits of DNG photos"), m_model.preferences().dngBeside,
        Texts::tr("DNG is made to hold metadata, so it is written as other photos are."),
        Texts::tr("The DNG file stays untouched. Other programs find the words in the sidecar.")));
    group->addRow(namingRow());
}

QWidget* SettingsView::homeRow(
    const QString& name, Setting<bool>& isBeside, const QString& inside, const QString& beside)
{
    //: Where edits of raw photos are written: into the photo's own file, or into a sidecar that lies beside it.
    auto* row = new ChoiceRow(name, { Texts::tr("Into the file"), Texts::tr("Beside it") });
    row->picker().setSpoken({ Texts::tr("Write into the file"), Texts::tr("Write beside it") });
    const auto show = [=, &isBeside] {
        row->picker().setCurrentIndex(isBeside() ? 1 : 0);
        row->setHelp(isBeside() ? beside : inside);
    };
    connect(&m_model.preferences(), &Preferences::changed, row, show);
    show();
    connect(&row->picker(), &SegmentedPicker::picked, &m_model, [&isBeside](int index) { isBeside.set(index == 1); });
    return row;
}

QWidget* SettingsView::namingRow()
{
    auto* row = new ChoiceRow(Texts::tr("Name of new sidecars"), { u"IMG_1.xmp"_s, u"IMG_1.CR3.xmp"_s });
    row->picker().setMono(true);
    row->setHelp(Texts::tr("A sidecar that is already there keeps its name."));
    Setting<SidecarNaming>& naming = m_model.preferences().sidecarNaming;
    const auto show = [row, &naming] { row->picker().setCurrentIndex(naming() == SidecarNaming::full ? 1 : 0); };
    connect(&m_model.preferences(), &Preferences::changed, row, show);
    show();
    connect(&row->picker(), &SegmentedPicker::picked, &m_model,
        [&naming](int index) { naming.set(index == 1 ? SidecarNaming::full : SidecarNaming::base); });
    return row;
}

void SettingsView::addPlaces(QVBoxLayout* column)
{
    Group* group = addGroup(column, Texts::tr("Places", "heading of settings: towns and sights"));
    group->addRow(Texts::tr("Online place service"), placeServiceField(),
        Texts::tr("Empty: places are looked up on this computer alone. With the https address of a "
                  "Photon-compatible service, what you type in the Place field is sent there; places known here "
                  "still come first. Takes effect at the next start."));
}

void SettingsView::addCodes(QVBoxLayout* column)
{
    addGroup(column, Texts::tr("Code replacements"))->addRow(new CodeFileRow(m_model.codes()));
}

QWidget* SettingsView::appearancePicker()
{
    auto* picker = new SegmentedPicker({ Texts::tr("System", "appearance: that of the desktop"),
        Texts::tr("Light", "appearance"), Texts::tr("Dark", "appearance"), Texts::tr("High contrast", "appearance") });
    const auto show = [this, picker] { picker->setCurrentIndex(indexOf(m_model.preferences().colorOverride())); };
    connect(&m_model.preferences(), &Preferences::changed, picker, show);
    show();
    connect(picker, &SegmentedPicker::picked, &m_model,
        [this](int index) { m_model.preferences().colorOverride.set(schemes[index]); });
    return picker;
}

// Those that there are, by the names that they have in themselves.
QWidget* SettingsView::languagePicker()
{
    auto* picker = new ChoicePicker(Texts::tr("Language"), languageWidth);
    //: The language of the desktop, in a list of languages.
    QStringList titles{ Texts::tr("System", "language") };
    for (const Languages::Language& language : m_languages)
        titles.append(language.name);
    picker->setTitles(titles);
    Setting<QString>& chosen = m_model.preferences().language;
    const auto show = [this, picker, &chosen] {
        const auto at = std::find_if(m_languages.cbegin(), m_languages.cend(),
            [&chosen](const Languages::Language& language) { return language.code == chosen(); });
        picker->setCurrent(at == m_languages.cend() ? 0 : 1 + int(at - m_languages.cbegin()));
    };
    connect(&m_model.preferences(), &Preferences::changed, picker, show);
    show();
    connect(picker, &ChoicePicker::picked, &m_model,
        [this, &chosen](int index) { chosen.set(index > 0 ? m_languages.at(index - 1).code : QString()); });
    return picker;
}

QWidget* SettingsView::patternField()
{
    auto* field = new QBTextField;
    field->setMono(true);
    field->setBoundText(m_model.preferences().renamePattern());
    onRestyle(field, [field] { field->setFixedWidth(px(patternWidth)); });
    connect(field, &QLineEdit::textEdited, &m_model,
        [this](const QString& text) { m_model.preferences().renamePattern.set(text); });
    connect(&m_model.preferences(), &Preferences::changed, field,
        [this, field] { field->setBoundText(m_model.preferences().renamePattern()); });
    return field;
}

QWidget* SettingsView::placeServiceField()
{
    auto* field = new QBTextField;
    field->setPlaceholder(u"https://…"_s);
    field->setBoundText(m_model.preferences().placeService());
    onRestyle(field, [field] { field->setFixedWidth(px(patternWidth)); });
    // An address that may not be asked stays in the field, marked, and is not stored.
    connect(field, &QLineEdit::textEdited, &m_model, [this, field](const QString& text) {
        const QString address = text.trimmed();
        const bool isUsable = address.isEmpty() || placeEndpoint(address);
        field->setEdited(!isUsable);
        field->setToolTip(isUsable ? QString() : Texts::tr("Not used: this is no https address."));
        if (isUsable)
            m_model.preferences().placeService.set(address);
    });
    return field;
}

QWidget* SettingsView::toggle(const QString& name, Setting<bool>& setting)
{
    auto* toggle = new QBSwitch;
    toggle->setAccessibleName(name);
    toggle->setChecked(setting());
    connect(toggle, &QAbstractButton::toggled, &m_model, [&setting](bool on) { setting.set(on); });
    connect(
        &m_model.preferences(), &Preferences::changed, toggle, [toggle, &setting] { toggle->setChecked(setting()); });
    return toggle;
}

void SettingsView::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), Theme::of(this).panel);
}

}  // namespace Quorbel
