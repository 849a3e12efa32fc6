#include "ui/window/Shortcuts.h"

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
    return { u"In the list of photos"_s,
        {
            { u"Next or previous photo"_s, { Qt::Key_Down, Qt::Key_Up } },
            { u"A page further or back"_s, { Qt::Key_PageDown, Qt::Key_PageUp } },
            { u"First or last photo"_s, { Qt::Key_Home, Qt::Key_End } },
            { u"Select up to there"_s, { Qt::SHIFT | Qt::Key_Down, Qt::SHIFT | Qt::Key_Up } },
            { u"Go there without selecting"_s, { Qt::CTRL | Qt::Key_Down, Qt::CTRL | Qt::Key_Up } },
            { u"Add to the selection, or take out"_s, { Qt::CTRL | Qt::Key_Space } },
            { u"Look closely"_s, { Qt::Key_Space } },
            digits(u"Rate"_s),
            { u"Open in the default application"_s, { Qt::Key_Return } },
            { u"Find by the beginning of the name"_s, range(Qt::Key_A, Qt::Key_Z), true },
            { u"Fold or unfold a folder"_s, { Qt::Key_Left, Qt::Key_Right } },
            { u"Fold or unfold all folders"_s, { Qt::ALT | Qt::Key_Left, Qt::ALT | Qt::Key_Right } },
        } };
}

ShortcutGroup inCloseup()
{
    return { u"Looking closely"_s,
        {
            { u"Next or previous photo, at the same place"_s, { Qt::Key_Right, Qt::Key_Left } },
            { u"Every pixel, or the whole photo"_s, { Qt::Key_Z } },
            { u"Larger or smaller"_s, { Qt::Key_Plus, Qt::Key_Minus } },
            { u"Move the photo across"_s, { Qt::SHIFT | Qt::Key_Left, Qt::SHIFT | Qt::Key_Right } },
            { u"Move the photo up or down"_s, { Qt::SHIFT | Qt::Key_Up, Qt::SHIFT | Qt::Key_Down } },
            digits(u"Rate"_s),
            { u"Back to the list"_s, { Qt::Key_Escape, Qt::Key_Space } },
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
        return { u"In a field"_s,
            { { u"Show its other languages, or add one"_s, { Qt::ALT | Qt::Key_Right } },
                { u"Hide its other languages"_s, { Qt::ALT | Qt::Key_Left } } } };
    case ShortcutPlace::keywords:
        return { u"In the keywords"_s,
            { { u"Add what was typed"_s, { Qt::Key_Return } },
                { u"From the entry to the last keyword"_s, { Qt::Key_Left, Qt::Key_Backspace } },
                { u"Take that keyword away"_s, { Qt::Key_Delete } } } };
    case ShortcutPlace::stars:
        return { u"On the stars"_s,
            { digits(u"Rate"_s), { u"One star more or fewer"_s, { Qt::Key_Right, Qt::Key_Left } } } };
    case ShortcutPlace::search:
        return { u"While searching"_s,
            { { u"Go to what was found"_s, { Qt::Key_Down, Qt::Key_Return } },
                { u"Show all photos again"_s, { Qt::Key_Escape } } } };
    case ShortcutPlace::closeup:
        return inCloseup();
    case ShortcutPlace::sheet:
        break;
    }
    return { u"In a sheet"_s, { { u"Confirm"_s, { Qt::Key_Return } }, { u"Cancel"_s, { Qt::Key_Escape } } } };
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
