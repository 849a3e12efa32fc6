#include "ui/window/Shortcuts.h"

#include "core/language/Texts.h"
#include "ui/controls/ThemedMenu.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString textOf(QKeyCombination key)
{
    return QKeySequence(key).toString(QKeySequence::NativeText);
}

// Without the mark of its mnemonic.
QString plainText(QString text)
{
    static const QRegularExpression behind(uR"( ?\(&[^&]\))"_s);  // "(&F)", where letters of the text itself are no keys
    const QString kept(QChar(0x1));
    return text.remove(behind).replace(u"&&"_s, kept).remove(u'&').replace(kept, u"&"_s);
}

QList<QKeyCombination> range(Qt::Key first, Qt::Key last)
{
    QList<QKeyCombination> keys;
    for (int key = first; key <= last; ++key)
        keys.append(Qt::Key(key));
    return keys;
}

// A row by what its keys do, as a marked text.
Shortcut row(const QString& english, const QList<QKeyCombination>& keys, bool isRange = false)
{
    return { Texts::shown(english), keys, isRange, english };
}

ShortcutGroup group(const QString& english, const QList<Shortcut>& rows)
{
    return { Texts::shown(english), rows, english };
}

Shortcut rating()
{
    //: What a key does: it gives a photo stars.
    return row(Texts::mark("Rate"), range(Qt::Key_0, Qt::Key_5), true);
}

constexpr auto englishProperty = "english";

// "" where the entry has another text by now.
QString englishOf(const QAction& action)
{
    const QString english = action.property(englishProperty).toString();
    return Texts::shown(english) == action.text() ? plainText(english) : QString();
}

// Whether the second is the digit behind the first one, with the same modifiers.
bool isNextDigit(QKeyCombination first, QKeyCombination second)
{
    return first.keyboardModifiers() == second.keyboardModifiers() && first.key() >= Qt::Key_0
        && second.key() <= Qt::Key_9 && second.key() == first.key() + 1;
}

// Keys of entries that are a row of digits become one row under the menu's name.
void take(const QMenu& menu, QList<Shortcut>& rows)
{
    constexpr qsizetype fewest = 3;
    QList<Shortcut> own;
    for (const QAction* action : menu.actions()) {
        if (const auto* submenu = action->menu<QMenu*>()) {
            take(*submenu, own);
        } else if (!action->shortcut().isEmpty() && action->isVisible()) {
            own.append({ plainText(action->text()), { action->shortcut()[0] }, false, englishOf(*action) });
        }
    }
    for (qsizetype i = 0; i < own.size();) {
        Shortcut run{ plainText(menu.title()), own.at(i).keys, true, englishOf(*menu.menuAction()) };
        qsizetype next = i + 1;
        for (; next < own.size() && !own.at(next).isRange
             && isNextDigit(run.keys.constLast(), own.at(next).keys.constFirst());
             ++next)
            run.keys.append(own.at(next).keys);
        if (own.at(i).isRange || run.keys.size() < fewest)
            rows.append(own.mid(i, next - i));
        else
            rows.append(run);
        i = next;
    }
}

ShortcutGroup inList()
{
    return group(Texts::mark("In the list of photos"),
        {
            row(Texts::mark("Next or previous photo"), { Qt::Key_Down, Qt::Key_Up }),
            row(Texts::mark("A page further or back"), { Qt::Key_PageDown, Qt::Key_PageUp }),
            row(Texts::mark("First or last photo"), { Qt::Key_Home, Qt::Key_End }),
            row(Texts::mark("Select up to there"), { Qt::SHIFT | Qt::Key_Down, Qt::SHIFT | Qt::Key_Up }),
            row(Texts::mark("Go there without selecting"), { Qt::CTRL | Qt::Key_Down, Qt::CTRL | Qt::Key_Up }),
            row(Texts::mark("Add to the selection, or take out"), { Qt::CTRL | Qt::Key_Space }),
            row(Texts::mark("Look closely"), { Qt::Key_Space }),
            rating(),
            row(Texts::mark("Open in the default application"), { Qt::Key_Return }),
            row(Texts::mark("Find by the beginning of the name"), range(Qt::Key_A, Qt::Key_Z), true),
            row(Texts::mark("Fold or unfold a folder"), { Qt::Key_Left, Qt::Key_Right }),
            row(Texts::mark("Fold or unfold all folders"), { Qt::ALT | Qt::Key_Left, Qt::ALT | Qt::Key_Right }),
        });
}

ShortcutGroup inCloseup()
{
    return group(Texts::mark("Looking closely"),
        {
            row(Texts::mark("Next or previous photo, at the same place"), { Qt::Key_Right, Qt::Key_Left }),
            row(Texts::mark("Every pixel, or the whole photo"), { Qt::Key_Z }),
            row(Texts::mark("Larger or smaller"), { Qt::Key_Plus, Qt::Key_Minus }),
            row(Texts::mark("Move the photo across"), { Qt::SHIFT | Qt::Key_Left, Qt::SHIFT | Qt::Key_Right }),
            row(Texts::mark("Move the photo up or down"), { Qt::SHIFT | Qt::Key_Up, Qt::SHIFT | Qt::Key_Down }),
            rating(),
            row(Texts::mark("Back to the list"), { Qt::Key_Escape, Qt::Key_Space }),
        });
}

}  // namespace

QString Shortcut::shownKeys() const
{
    if (isRange && keys.size() > 1)
        return u"%1 … %2"_s.arg(textOf(keys.constFirst()), textOf(keys.constLast().key()));
    QStringList texts;
    for (const QKeyCombination key : keys)
        texts.append(textOf(key));
    return texts.join(u", "_s);
}

void Shortcuts::name(QAction& action, const QString& english)
{
    action.setText(Texts::shown(english));
    action.setProperty(englishProperty, english);
}

QAction* Shortcuts::addCommand(
    ThemedMenu& menu, const QString& english, const QList<QKeySequence>& keys, const std::function<void()>& run)
{
    QAction* action = menu.addCommand({}, keys, run);
    name(*action, english);
    return action;
}

QList<ShortcutGroup> Shortcuts::ofMenus(const QMenuBar& menus)
{
    QList<ShortcutGroup> groups;
    for (const QAction* action : menus.actions()) {
        ShortcutGroup group{ plainText(action->text()), {}, englishOf(*action) };
        if (const auto* menu = action->menu<QMenu*>())
            take(*menu, group.rows);
        if (!group.rows.isEmpty())
            groups.append(group);
    }
    return groups;
}

ShortcutGroup Shortcuts::in(ShortcutPlace place)
{
    switch (place) {
    case ShortcutPlace::list:
        return inList();
    case ShortcutPlace::field:
        return group(Texts::mark("In a field"),
            { row(Texts::mark("Show its other languages, or add one"), { Qt::ALT | Qt::Key_Right }),
                row(Texts::mark("Hide its other languages"), { Qt::ALT | Qt::Key_Left }) });
    case ShortcutPlace::keywords:
        return group(Texts::mark("In the keywords"),
            { row(Texts::mark("Add what was typed"), { Qt::Key_Return }),
                row(Texts::mark("From the entry to the last keyword"), { Qt::Key_Left, Qt::Key_Backspace }),
                row(Texts::mark("Take that keyword away"), { Qt::Key_Delete }) });
    case ShortcutPlace::stars:
        return group(Texts::mark("On the stars"),
            { rating(), row(Texts::mark("One star more or fewer"), { Qt::Key_Right, Qt::Key_Left }) });
    case ShortcutPlace::search:
        return group(Texts::mark("While searching"),
            { row(Texts::mark("Go to what was found"), { Qt::Key_Down, Qt::Key_Return }),
                row(Texts::mark("Show all photos again"), { Qt::Key_Escape }) });
    case ShortcutPlace::closeup:
        return inCloseup();
    case ShortcutPlace::sheet:
        break;
    }
    return group(Texts::mark("In a sheet"),
        { row(Texts::mark("Confirm"), { Qt::Key_Return }), row(Texts::mark("Cancel"), { Qt::Key_Escape }) });
}

QList<ShortcutGroup> Shortcuts::inPlaces()
{
    QList<ShortcutGroup> groups;
    for (const auto place : { ShortcutPlace::list, ShortcutPlace::field, ShortcutPlace::keywords, ShortcutPlace::stars,
             ShortcutPlace::search, ShortcutPlace::closeup, ShortcutPlace::sheet })
        groups.append(in(place));
    return groups;
}

}  // namespace Quorbel
