// The store's thumbnails on disk: one JPEG (PNG where there is transparency) for each version of a file and each size,
// so that nothing is ever looked up that belongs to other bytes. Thread: any, several at once. Failures are silent: the
// cache is a convenience.
#pragma once

#include "app/model/thumbnails/FileVersion.h"

#include <QImage>
#include <QString>

namespace Quorbel {

class ThumbnailDiskCache {
public:
    /// `folder` is made, readable by its owner alone, on the first write; empty: every look-up misses.
    explicit ThumbnailDiskCache(QString folder);

    /// Names one version of one file at one size; empty for no file.
    QString key(const QString& path, const FileVersion& version, int longSide) const;
    QImage load(const QString& key) const;
    void save(const QString& key, const QImage& image) const;
    /// What was saved under one key is another's from now on.
    void carry(const QString& from, const QString& to) const;
    /// Removes the files that were not written for the longest time until the rest fits.
    void prune(qint64 mostBytes) const;

private:
    QString m_folder;
};

/// A thumbnail that another program put into the shared thumbnail folder of the desktop, for exactly this version
/// of the file and with a long side of at least `longSide`; null when there is none. Its colours and its freshness
/// are that program's affair, so it stands in for the picture only where nothing better exists.
QImage sharedThumbnail(const QString& folder, const QString& path, int longSide);

}  // namespace Quorbel
