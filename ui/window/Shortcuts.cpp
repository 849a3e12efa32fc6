#include "ui/window/Shortcuts.h"

#include "core/language/Texts.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

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
    const QString kept(QChar(0x1));
    return text.replace(u"&&"_s, kept).remove(u'&').replace(kept, u"&"_s);
}

QList<QKeyCombination> range(Qt::Key first, Qt::Key last)
{
    QList<QKeyCombination> keys;
    for (int key = first; key <= last; ++key)
        keys.append(Qt::Key(key));
    return keys;
}

Shortcut digits(const QString& does)
{
    return { does, range(Qt::Key_0, Qt::Key_5), true };
}

// Whether the second is the digit behind the first one, with the same modifiers.
bool isNextDigit(QKeyCombination first, QKeyCombination second)
{
    return first.keyboardModifiers() == second.keyboardModifiers() && first.key() >= Qt::Key_0
        && second.key() <= Qt::Key_9 && second.key() == first.key() + 1;
}

// Keys of entries that are a row of digits become one row under the menu's name.
void take(const QMenu& menu, const QString& name, QList<Shortcut>& rows)
{
    constexpr qsizetype fewest = 3;
    QList<Shortcut> own;
    for (const QAction* action : menu.actions()) {
        if (const auto* submenu = action->menu<QMenu*>()) {
            take(*submenu, plainText(action->text()), own);
        } else if (!action->shortcut().isEmpty() && action->isVisible()) {
            own.append({ plainText(action->text()), { action->shortcut()[0] } });
        }
    }
    for (qsizetype i = 0; i < own.size();) {
        Shortcut run{ name, own.at(i).keys, true };
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
    return { Texts::tr("In the list of photos"),
        {
            { Texts::tr("Next or previous photo"), { Qt::Key_Down, Qt::Key_Up } },
            { Texts::tr("A page further or back"), { Qt::Key_PageDown, Qt::Key_PageUp } },
            { Texts::tr("First or last photo"), { Qt::Key_Home, Qt::Key_End } },
            { Texts::tr("Select up to there"), { Qt::SHIFT | Qt::Key_Down, Qt::SHIFT | Qt::Key_Up } },
            { Texts::tr("Go there without selecting"), { Qt::CTRL | Qt::Key_Down, Qt::CTRL | Qt::Key_Up } },
            { Texts::tr("Add to the selection, or take out"), { Qt::CTRL | Qt::Key_Space } },
            { Texts::tr("Look closely"), { Qt::Key_Space } },
            digits(Texts::tr("Rate")),
            { Texts::tr("Open in the default application"), { Qt::Key_Return } },
            { Texts::tr("Find by the beginning of the name"), range(Qt::Key_A, Qt::Key_Z), true },
            { Texts::tr("Fold or unfold a folder"), { Qt::Key_Left, Qt::Key_Right } },
            { Texts::tr("Fold or unfold all folders"), { Qt::ALT | Qt::Key_Left, Qt::ALT | Qt::Key_Right } },
        } };
}

ShortcutGroup inCloseup()
{
    return { Texts::tr("Looking closely"),
        {
            { Texts::tr("Next or previous photo, at the same place"), { Qt::Key_Right, Qt::Key_Left } },
            { Texts::tr("Every pixel, or the whole photo"), { Qt::Key_Z } },
            { Texts::tr("Larger or smaller"), { Qt::Key_Plus, Qt::Key_Minus } },
            { Texts::tr("Move the photo across"), { Qt::SHIFT | Qt::Key_Left, Qt::SHIFT | Qt::Key_Right } },
            { Texts::tr("Move the photo up or down"), { Qt::SHIFT | Qt::Key_Up, Qt::SHIFT | Qt::Key_Down } },
            digits(Texts::tr("Rate")),
            { Texts::tr("Back to the list"), { Qt::Key_Escape, Qt::Key_Space } },
        } };
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

QList<ShortcutGroup> Shortcuts::ofMenus(const QMenuBar& menus)
{
    QList<ShortcutGroup> groups;
    for (const QAction* action : menus.actions()) {
        ShortcutGroup group{ plainText(action->text()) };
        if (const auto* menu = action->menu<QMenu*>())
            take(*menu, group.title, group.rows);
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
        return { Texts::tr("In a field"),
            { { Texts::tr("Show its other languages, or add one"), { Qt::ALT | Qt::Key_Right } },
                { Texts::tr("Hide its other languages"), { Qt::ALT | Qt::Key_Left } } } };
    case ShortcutPlace::keywords:
        return { Texts::tr("In the keywords"),
            { { Texts::tr("Add what was typed"), { Qt::Key_Return } },
                { Texts::tr("From the entry to the last keyword"), { Qt::Key_Left, Qt::Key_Backspace } },
                { Texts::tr("Take that keyword away"), { Qt::Key_Delete } } } };
    case ShortcutPlace::stars:
        return { Texts::tr("On the stars"),
            { digits(Texts::tr("Rate")), { Texts::tr("One star more or fewer"), { Qt::Key_Right, Qt::Key_Left } } } };
    case ShortcutPlace::search:
        return { Texts::tr("While searching"),
            { { Texts::tr("Go to what was found"), { Qt::Key_Down, Qt::Key_Return } },
                { Texts::tr("Show all photos again"), { Qt::Key_Escape } } } };
    case ShortcutPlace::closeup:
        return inCloseup();
    case ShortcutPlace::sheet:
        break;
    }
    return { Texts::tr("In a sheet"),
        { { Texts::tr("Confirm"), { Qt::Key_Return } }, { Texts::tr("Cancel"), { Qt::Key_Escape } } } };
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
