// Which files count as photos. Thread: any. Pure: goes by the name alone.
#pragma once

#include <QSet>
#include <QString>
#include <QUrl>

namespace Quorbel::ImageTypes {

/// The 50 lower-case extensions of files that are treated as photos.
const QSet<QString>& extensions();
/// Whether the extension of the URL's last path component, in any case, is one of them.
bool isImage(const QUrl& url);
/// The same for the name alone.
bool isImageName(const QString& fileName);
/// The lower-case extensions of cameras' raw files, without "dng".
const QSet<QString>& rawExtensions();
/// Whether the name is that of a camera's raw file; DNG is not meant.
bool isRaw(const QString& fileName);
bool isDng(const QString& fileName);
/// Whether it is that of a picture as cameras write it beside a raw file: JPEG or HEIC.
bool isJpeg(const QString& fileName);
bool isHeic(const QString& fileName);

}  // namespace Quorbel::ImageTypes
