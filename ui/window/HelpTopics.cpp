#include "ui/window/HelpTopics.h"

#include "core/language/Texts.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

const QList<std::pair<HelpTopic, QString>>& RawValues<HelpTopic>::table()
{
    static const QList<std::pair<HelpTopic, QString>> cases{
        { HelpTopic::gettingStarted, u"gettingStarted"_s },
        { HelpTopic::interface, u"interface"_s },
        { HelpTopic::editing, u"editing"_s },
        { HelpTopic::hands, u"hands"_s },
        { HelpTopic::languages, u"languages"_s },
        { HelpTopic::keywordPaths, u"keywordPaths"_s },
        { HelpTopic::disagreements, u"disagreements"_s },
        { HelpTopic::gaps, u"gaps"_s },
        { HelpTopic::fieldSets, u"fieldSets"_s },
        { HelpTopic::times, u"times"_s },
        { HelpTopic::batch, u"batch"_s },
        { HelpTopic::copying, u"copying"_s },
        { HelpTopic::templates, u"templates"_s },
        { HelpTopic::renaming, u"renaming"_s },
        { HelpTopic::saving, u"saving"_s },
        { HelpTopic::rawFiles, u"rawFiles"_s },
        { HelpTopic::settings, u"settings"_s },
    };
    return cases;
}

namespace {

struct Page {
    QString title{};
    QString icon{};
    QList<HelpBlock> blocks{};
};

HelpBlock paragraph(const QString& text)
{
    return HelpParagraph{ text };
}

HelpBlock bullets(const QStringList& items)
{
    return HelpBullets{ items };
}

Page gettingStartedPage()
{
    return { Texts::tr("Getting Started"), u"sparkles"_s,
        {
            paragraph(Texts::tr("Quorbel reads and edits the metadata inside your photos — titles, dates, captions, "
                                "keywords and location — and writes your changes into the EXIF, IPTC and XMP standards "
                                "at once so every app agrees.")),
            paragraph(Texts::tr("To begin, open a folder of images or one or more image files:")),
            bullets({ Texts::tr("Choose File ▸ Open… (⌘O), or drag photos onto the window."),
                Texts::tr("Choose File ▸ Open with Subfolders… (⌘⇧O) to open a folder with all the folders in it."),
                Texts::tr("Reopen something recent from File ▸ Open Recent."),
                Texts::tr("Right-click a photo in your file manager and choose Open With ▸ Quorbel.") }),
        } };
}

Page interfacePage()
{
    return { Texts::tr("The Interface"), u"sidebar.left"_s,
        {
            paragraph(Texts::tr("The window has three regions:")),
            bullets({ Texts::tr("Sidebar (left): every photo in the folder. Search and sort by name or date from the "
                                "controls at the top."),
                Texts::tr(
                    "With subfolders open, each folder has a heading. Click it, or press Return on it, to fold its "
                    "photos away; ⌥-click folds all. Left goes from a photo to its heading and folds, Right unfolds."),
                Texts::tr("Preview (center): a large preview column appears as you widen the window, so you always see "
                          "the photo you're tagging."),
                Texts::tr("Inspector (right): the editable fields, grouped as Common, Location and read-only Camera "
                          "details.") }),
            paragraph(Texts::tr("Quorbel remembers what it read: a folder that you open again is there at once, and "
                                "only photos that changed are read. View ▸ Read Again (⇧F5) reads all of them anew.")),
        } };
}

Page editingPage()
{
    return { Texts::tr("Editing Metadata"), u"pencil"_s,
        {
            paragraph(
                Texts::tr("Select a photo and edit its fields in the inspector. Set a title, date, caption or location "
                          "once and Quorbel writes it to the matching EXIF, IPTC and XMP tags together.")),
            bullets({ Texts::tr("Use Add Field to pick a recommended standard field, or define a custom one."),
                Texts::tr("Turn on Show namespace details (Settings) to see exactly which tag each value writes to."),
                Texts::tr("Edited fields are marked until you save.") }),
        } };
}

Page handsPage()
{
    return { Texts::tr("From Photo to Photo"), u"keyboard"_s,
        {
            paragraph(Texts::tr("Captions for many photos need no mouse. The keys work from within any field:")),
            bullets({ Texts::tr("⌥Down and ⌥Up go to the next and the previous photo. The keyboard stays in the same "
                                "field, and its text is selected there."),
                Texts::tr("⌘Return saves and goes on at once: you type while the last photo is still being written."),
                Texts::tr("Ctrl+' fills the field with what the photo before shows. An empty field there takes nothing "
                          "away."),
                Texts::tr("0 to 5 rate while the list has the keyboard; ⌘⌥0 to ⌘⌥5 rate anywhere, one photo or many."),
                Texts::tr(
                    "F11, or Space in the list, looks closely: the photo fills the window. A click or Z shows every "
                    "pixel there, the arrow keys go on to the next photo at the same place, Escape returns."),
                Texts::tr("Help ▸ Keyboard Shortcuts (Ctrl+F1) lists all keys.") }),
        } };
}

Page languagesPage()
{
    return { Texts::tr("Several Languages"), u"globe"_s,
        {
            paragraph(Texts::tr("A title, description, copyright notice, event or usage terms can be in several "
                                "languages in one photo. The field shows the text that every app reads; the others "
                                "stay with the photo whatever you write there.")),
            bullets({ Texts::tr("A field that has other languages names them at its right end, like “de fr”. Click "
                                "there, or press ⌥Right in the field, to see and edit them; ⌥Left hides them."),
                Texts::tr(
                    "Add language finds a language by its name; the cross behind a text takes that language away."),
                Texts::tr("Both count as unsaved until you save, and work for several photos at once.") }),
        } };
}

Page keywordPathsPage()
{
    return { Texts::tr("Keyword Paths"), u"tag"_s,
        {
            paragraph(
                Texts::tr("Many programs keep keywords in a tree, such as Places ▸ France ▸ Paris. Quorbel shows where "
                          "a keyword stands: in front of it while there are few, and always in its tooltip.")),
            bullets({ Texts::tr("Type Places > France > Paris, with a blank on each side of the >, or "
                                "Places|France|Paris. The photo gets the keyword Paris and its place in the tree."),
                Texts::tr("Suggestions tell the places of a keyword. Type Places| to see what lies below Places."),
                Texts::tr("Take a keyword away, and the paths that lead to it go too, in every place where the photo "
                          "keeps them. Paths that lead further stay.") }),
        } };
}

Page disagreementsPage()
{
    return { Texts::tr("Places That Disagree"), u"not.equal"_s,
        {
            paragraph(Texts::tr("A photo keeps a title or a date in several places, and each program reads the one it "
                                "knows. When programs changed only some of them, the places differ. A field whose "
                                "places differ has a mark under it.")),
            bullets({ Texts::tr("Click the mark to see what each place holds. Use this one makes a text your edit; "
                                "saving writes it to all places."),
                Texts::tr("View ▸ Show Disagreements (⌘⇧D) lists only photos whose places differ. Quorbel looks at all "
                          "open photos for that, while you work on."),
                Texts::tr("With photos selected, Edit ▸ Make Them Agree writes what each photo shows to all of its "
                          "places. Undo Save takes it back.") }),
        } };
}

Page gapsPage()
{
    return { Texts::tr("Finding Gaps"), u"line.3.horizontal.decrease"_s,
        {
            paragraph(Texts::tr("The filter beside the search lists only photos that lack something, have few or many "
                                "stars, are edited and not saved, or hold a text in any field. Tick several: a photo "
                                "must fit all. Each count is that of all open photos.")),
            bullets({ Texts::tr("F8 goes to the next empty field: down the form, then on to the next photo. ⇧F8 goes "
                                "back. With a filter for empty fields, only those count."),
                Texts::tr("A photo that you edit stays listed until it is saved; then the next one takes its place."),
                Texts::tr(
                    "The cross of a chip, or Delete on it, ends one filter; View ▸ Clear Filters (⌘⇧F) ends all.") }),
        } };
}

Page fieldSetsPage()
{
    return { Texts::tr("IPTC Fields & Field Sets"), u"square.stack.3d.up"_s,
        {
            paragraph(Texts::tr(
                "Quorbel reads and writes every property of the IPTC Photo Metadata Standard: alternative text, "
                "contacts, people, places, releases, licences, what a picture was made with. A photo shows those that "
                "it holds; Add Field finds all others, by their names, by what they are for, and by their tags.")),
            bullets({ Texts::tr("View ▸ Field Set chooses what is on screen at once: Captions, Press, Museum, Stock, "
                                "Rights, Accessibility, or a set of your own. What a photo holds beside the set stays "
                                "visible, and so does what you edited."),
                Texts::tr("A set may want fields. Empty ones have a dashed border, the lines of the sections count "
                          "them, and F8 goes from one to the next, on to the next photo at the end. ⇧F8 goes back."),
                Texts::tr("Save What Is on Screen as Set… makes a set of your own; Edit Sets… changes what is in it "
                          "and what it wants. Sets that come with Quorbel can be copied there."),
                Texts::tr("Default is the form as it was. Once you have chosen a set, or made one, they can be picked "
                          "at the top of the form, too."),
                Texts::tr("“Some fields could not be read” stands under a photo’s name where that is so. Until Try "
                          "again has read them, they cannot be edited: what nobody has seen is not written over.") }),
        } };
}

Page timesPage()
{
    return { Texts::tr("Shifting Times"), u"clock"_s,
        {
            paragraph(Texts::tr("A camera whose clock was wrong leaves wrong times in all of its photos. Select them, "
                                "and choose Edit ▸ Shift Time.")),
            bullets({ Texts::tr("By an amount: so many days, hours, minutes and seconds later or earlier."),
                Texts::tr("By a known photo: type when one of the photos was really taken, and all others go by the "
                          "same amount."),
                Texts::tr("Time zone: sets the zone that the times are in. Keep the clock time, or let it move with "
                          "the zone. Photos with a position can each get the zone that they were taken in."),
                Texts::tr("The table shows the first photo, the last one, and what becomes another day. Photos without "
                          "a date are named and left alone. Undo Shift Time takes it back.") }),
        } };
}

Page batchPage()
{
    return { Texts::tr("Batch Editing"), u"square.stack.3d.up"_s,
        {
            paragraph(Texts::tr("Select multiple photos to edit them together. Use ⌘A to select all, or ⇧/⌘-click to "
                                "build a selection.")),
            bullets({ Texts::tr("Choose which fields to apply, set their values, and Quorbel writes them to every "
                                "selected photo in one pass."),
                Texts::tr("List fields (like keywords) are appended across the selection."),
                Texts::tr("Quorbel confirms before a mass edit unless you've turned that prompt off."),
                Texts::tr("Below the keywords stand those that the selected photos have, with how many have each. "
                          "Click one to give it to all of them; its cross takes it away from all with the next save."),
                Texts::tr("Quick keywords are the last ones you used, or a set of your own: click one, or press Alt+1 "
                          "to Alt+9. The name of the set is a menu of all sets.") }),
        } };
}

Page copyingPage()
{
    return { Texts::tr("Copying Fields & Codes"), u"doc"_s,
        {
            paragraph(Texts::tr(
                "What one photo says can be given to others, and texts that you type often can have short codes.")),
            bullets({ Texts::tr("Edit ▸ Copy Fields (⌘⇧C) takes the fields of the selected photo as you see them. Edit "
                                "▸ Paste Fields… (⌘⇧V) shows what they would replace in the selected photos, and "
                                "pastes those that you tick. Nothing is written before you save."),
                Texts::tr("Edit ▸ Paste Fields Again pastes with the same ticks, without asking. What you copied last "
                          "is there in another window and after a restart, too."),
                Texts::tr("Choose a file of codes in Settings: a code, a tab and its text in each line. Then type =js= "
                          "in a text or keyword, and js becomes its text. One Undo (⌘Z) gives the code back.") }),
        } };
}

Page templatesPage()
{
    return { Texts::tr("Templates"), u"doc"_s,
        {
            paragraph(Texts::tr(
                "A template fills fields of the selected photos with texts that each photo completes: “Race %Counter% "
                "off %Place|Zürich%”. Make one in Edit ▸ Templates, or from a photo with Save as Template…")),
            bullets({ Texts::tr("⌘1 to ⌘9 apply the templates that have these keys. What they fill in are edits, "
                                "written when you save."),
                Texts::tr("Each field is set, set only if it is empty, or gains the text behind or before its own."),
                Texts::tr("Tokens stand for what the photo says: all fields, the camera, %Filename% and %Counter%. "
                          "Double-click one to give it a form, such as d MMMM yyyy, and a text for photos that lack "
                          "the value."),
                Texts::tr("Each template is a file. Drag one out of the list to pass it on, and drop files in to "
                          "import them.") }),
        } };
}

Page renamingPage()
{
    return { Texts::tr("Renaming Files"), u"textformat"_s,
        {
            paragraph(
                Texts::tr("Quorbel can rename files from a pattern built out of their own metadata. Open the rename "
                          "dialog, add token chips and free text, and preview the result before applying.")),
            paragraph(Texts::tr("Available tokens:")),
            //: Tokens, the words between two % signs, stay as they are in every language.
            bullets({ Texts::tr("%Date% — date taken"), Texts::tr("%Time% — time taken"), Texts::tr("%Title% — title"),
                Texts::tr("%Creator% — creator"), Texts::tr("%Place% — place"),
                Texts::tr("%Original% — the original filename") }),
            paragraph(Texts::tr("Example: %Date%_%Title% might produce 2026-07-14_Sunset.jpg. Names are kept "
                                "filesystem-safe and unique automatically.")),
            paragraph(
                Texts::tr("Several photos get their names together: select them and choose Rename Photos… in the File "
                          "menu (Shift+F2). %Counter% numbers them in the order of the list; every other field has a "
                          "token of its name, too, like %Headline%, and %Title|Untitled% or %Date:yyyyMMdd% say what "
                          "stands for a missing title, or how a date is written. Names that lack something or were "
                          "taken are marked. Sidecars, backups and the raw file of a pair go along, and Undo Rename in "
                          "the Edit menu takes all of it back, also after a restart.")),
        } };
}

Page savingPage()
{
    return { Texts::tr("Saving & Backups"), u"externaldrive"_s,
        {
            paragraph(Texts::tr("Your edits are written when you Save (⌘S).")),
            bullets({ Texts::tr("Originals are backed up before writing (you can turn this off in Settings)."),
                Texts::tr("Quorbel prompts before you switch away with unsaved changes."),
                Texts::tr("Optionally write an XMP sidecar instead of embedding, from Settings.") }),
        } };
}

Page rawFilesPage()
{
    return { Texts::tr("Raw Files"), u"photo"_s,
        {
            paragraph(Texts::tr(
                "Settings ▸ Raw files says where the edits of raw photos go: into the file, as with other photos, or "
                "beside it. Beside it, the raw file itself is never written to.")),
            bullets({ Texts::tr("The words then go to an XMP sidecar, which other programs read and write too. The "
                                "line under the photo’s name says which file that is. DNG has a choice of its own."),
                Texts::tr("What the sidecar says stands before what the raw file says, field by field. Where the two "
                          "differ, the field has a mark; click it to see both."),
                Texts::tr("View ▸ Pair Raw and JPEG lists the two files of a shot as one photo. An edit goes to both, "
                          "each by its own setting, and renaming takes all files of the shot along."),
                Texts::tr("File ▸ Write Sidecars Into Photos… and Write Metadata Into Sidecars… move words over for "
                          "the selected photos. You see first what would change in how many. Undo Save takes it back."),
                Texts::tr("Develop settings, and whatever else other programs keep in a sidecar, stay as they are.") }),
        } };
}

Page settingsPage()
{
    return { Texts::tr("Settings"), u"gearshape"_s,
        {
            paragraph(Texts::tr("Open Settings from the Quorbel menu (⌘,) to adjust:")),
            bullets({ Texts::tr("Back up originals before saving."), Texts::tr("Write an XMP sidecar file."),
                Texts::tr("Show namespace details for every field."),
                Texts::tr("Confirm before mass edits, and the default rename pattern.") }),
        } };
}

Page page(HelpTopic topic)
{
    switch (topic) {
    case HelpTopic::gettingStarted:
        return gettingStartedPage();
    case HelpTopic::interface:
        return interfacePage();
    case HelpTopic::editing:
        return editingPage();
    case HelpTopic::hands:
        return handsPage();
    case HelpTopic::languages:
        return languagesPage();
    case HelpTopic::keywordPaths:
        return keywordPathsPage();
    case HelpTopic::disagreements:
        return disagreementsPage();
    case HelpTopic::gaps:
        return gapsPage();
    case HelpTopic::fieldSets:
        return fieldSetsPage();
    case HelpTopic::times:
        return timesPage();
    case HelpTopic::batch:
        return batchPage();
    case HelpTopic::copying:
        return copyingPage();
    case HelpTopic::templates:
        return templatesPage();
    case HelpTopic::renaming:
        return renamingPage();
    case HelpTopic::saving:
        return savingPage();
    case HelpTopic::rawFiles:
        return rawFilesPage();
    case HelpTopic::settings:
        break;
    }
    return settingsPage();
}

}  // namespace

QString title(HelpTopic topic)
{
    return page(topic).title;
}

QString iconName(HelpTopic topic)
{
    return page(topic).icon;
}

QList<HelpBlock> blocks(HelpTopic topic)
{
    return page(topic).blocks;
}

}  // namespace Quorbel
