// The definitions of custom fields, as a file that lives as long as the object. Thread: any. Writes one file.
#pragma once

#include <QStringList>
#include <QUrl>

#include <optional>

namespace Quorbel {

/// Readable by the user alone: the names may be private.
class TemporaryConfig final {
public:
    /// `further` definitions stand behind those of the custom fields. No file without either. Throws FileError when it
    /// cannot be written.
    explicit TemporaryConfig(const QStringList& customNames, const QString& further = {});
    ~TemporaryConfig();
    Q_DISABLE_COPY_MOVE(TemporaryConfig)

    const std::optional<QUrl>& url() const { return m_url; }

private:
    std::optional<QUrl> m_url;
};

}  // namespace Quorbel
