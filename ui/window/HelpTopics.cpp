#include "ui/window/HelpTopics.h"

namespace Quorbel {

const QList<std::pair<HelpTopic, QString>>& RawValues<HelpTopic>::table()
{
    static const QList<std::pair<HelpTopic, QString>> cases{
        { HelpTopic::gettingStarted, QStringLiteral("gettingStarted") },
        { HelpTopic::interface, QStringLiteral("interface") },
        { HelpTopic::editing, QStringLiteral("editing") },
        { HelpTopic::batch, QStringLiteral("batch") },
        { HelpTopic::renaming, QStringLiteral("renaming") },
        { HelpTopic::saving, QStringLiteral("saving") },
        { HelpTopic::settings, QStringLiteral("settings") },
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
    return { QStringLiteral("Getting Started"), QStringLiteral("sparkles"),
        {
            paragraph(QStringLiteral(
                "Quorbel reads and edits the metadata inside your photos — titles, dates, captions, keywords and "
                "location — and writes your changes into the EXIF, IPTC and XMP standards at once so every app "
                "agrees.")),
            paragraph(QStringLiteral("To begin, open a folder of images or one or more image files:")),
            bullets({ QStringLiteral("Choose File ▸ Open… (⌘O), or drag photos onto the window."),
                QStringLiteral("Reopen something recent from File ▸ Open Recent."),
                QStringLiteral("Right-click a photo in Finder and choose Open With ▸ Quorbel.") }),
        } };
}

Page interfacePage()
{
    return { QStringLiteral("The Interface"), QStringLiteral("sidebar.left"),
        {
            paragraph(QStringLiteral("The window has three regions:")),
            bullets({ QStringLiteral("Sidebar (left): every photo in the folder. Search and sort by name or date from "
                                     "the controls at the top."),
                QStringLiteral("Preview (center): a large preview column appears as you widen the window, so you "
                               "always see the photo you're tagging."),
                QStringLiteral("Inspector (right): the editable fields, grouped as Common, Location and read-only "
                               "Camera details.") }),
        } };
}

Page editingPage()
{
    return { QStringLiteral("Editing Metadata"), QStringLiteral("pencil"),
        {
            paragraph(QStringLiteral(
                "Select a photo and edit its fields in the inspector. Set a title, date, caption or location once "
                "and Quorbel writes it to the matching EXIF, IPTC and XMP tags together.")),
            bullets({ QStringLiteral("Use Add Field to pick a recommended standard field, or define a custom one."),
                QStringLiteral(
                    "Turn on Show namespace details (Settings) to see exactly which tag each value writes to."),
                QStringLiteral("Edited fields are marked until you save.") }),
        } };
}

Page batchPage()
{
    return { QStringLiteral("Batch Editing"), QStringLiteral("square.stack.3d.up"),
        {
            paragraph(QStringLiteral("Select multiple photos to edit them together. Use ⌘A to select all, or "
                                     "⇧/⌘-click to build a selection.")),
            bullets({ QStringLiteral("Choose which fields to apply, set their values, and Quorbel writes them to "
                                     "every selected photo in one pass."),
                QStringLiteral("List fields (like keywords) are appended across the selection."),
                QStringLiteral("Quorbel confirms before a mass edit unless you've turned that prompt off.") }),
        } };
}

Page renamingPage()
{
    return { QStringLiteral("Renaming Files"), QStringLiteral("textformat"),
        {
            paragraph(QStringLiteral(
                "Quorbel can rename files from a pattern built out of their own metadata. Open the rename dialog, "
                "add token chips and free text, and preview the result before applying.")),
            paragraph(QStringLiteral("Available tokens:")),
            bullets({ QStringLiteral("%Date% — date taken"), QStringLiteral("%Time% — time taken"),
                QStringLiteral("%Title% — title"), QStringLiteral("%Creator% — creator"),
                QStringLiteral("%Place% — place"), QStringLiteral("%Original% — the original filename") }),
            paragraph(QStringLiteral("Example: %Date%_%Title% might produce 2026-07-14_Sunset.jpg. Names are kept "
                                     "filesystem-safe and unique automatically.")),
        } };
}

Page savingPage()
{
    return { QStringLiteral("Saving & Backups"), QStringLiteral("externaldrive"),
        {
            paragraph(QStringLiteral("Your edits are written when you Save (⌘S).")),
            bullets({ QStringLiteral("Originals are backed up before writing (you can turn this off in Settings)."),
                QStringLiteral("Quorbel prompts before you switch away with unsaved changes."),
                QStringLiteral("Optionally write an XMP sidecar instead of embedding, from Settings.") }),
        } };
}

Page settingsPage()
{
    return { QStringLiteral("Settings"), QStringLiteral("gearshape"),
        {
            paragraph(QStringLiteral("Open Settings from the Quorbel menu (⌘,) to adjust:")),
            bullets({ QStringLiteral("Back up originals before saving."), QStringLiteral("Write an XMP sidecar file."),
                QStringLiteral("Show namespace details for every field."),
                QStringLiteral("Confirm before mass edits, and the default rename pattern.") }),
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
    case HelpTopic::batch:
        return batchPage();
    case HelpTopic::renaming:
        return renamingPage();
    case HelpTopic::saving:
        return savingPage();
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
