// Templates as files: readable JSON, one template each, in one folder that several programs may share.
// Thread: any; everything here works on the disk, so call it in the background. Files that are no templates, or such of
// a newer version, are named and left alone.
#pragma once

#include "core/templates/Template.h"

#include <QByteArray>

namespace Quorbel::TemplateFile {

constexpr int version = 1;

/// A template and where it lies.
struct Stored {
    QString path{};
    Template value{};
    bool operator==(const Stored&) const = default;
};

/// What a folder holds.
struct Listing {
    QList<Stored> templates{};  ///< by file name
    QStringList problems{};  ///< one line for each file that was left out, with its name
    bool operator==(const Listing&) const = default;
};

QByteArray toJson(const Template& value);
/// The template, or else in `problem` why it is none ("was made by a newer version of Quorbel").
std::optional<Template> fromJson(const QByteArray& json, QString* problem = nullptr);

/// One file, wherever it lies. In `problem` a whole line with the file's name.
std::optional<Template> read(const QString& path, QString* problem = nullptr);
/// Those in the folder that end in ".json". A folder that does not exist holds none.
Listing list(const QString& folder);

/// A name for its file: as the template is called, in any script, but for what file systems refuse.
QString baseName(const QString& templateName);
/// Replaces the file, or writes a new one where the path is empty or does not fit the name any more; the old one is
/// then removed. The path that it has now. Makes the folder. Throws FileError.
QString write(const QString& folder, const Stored& stored);

}  // namespace Quorbel::TemplateFile
