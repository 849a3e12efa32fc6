#include "core/text/Errors.h"

namespace Quorbel {

namespace {

struct Describe {
    QString operator()(const ToolError::PerlNotFound& error) const
    {
        return QStringLiteral("Perl interpreter not found at ") + error.perlURL.toLocalFile() + u'.';
    }
    QString operator()(const ToolError::ExecFailed& error) const
    {
        return QStringLiteral("ExifTool exited with code ") + QString::number(error.code) + QStringLiteral(": ")
            + error.standardError;
    }
    QString operator()(const ToolError::DecodeFailed& error) const
    {
        return QStringLiteral("Could not decode ExifTool output: ") + error.detail;
    }
    QString operator()(const ToolError::ToolNotFound&) const
    {
        return QStringLiteral("Bundled ExifTool could not be located.");
    }
};

}  // namespace

Error::Error(const QString& description)
    : m_description(description)
    , m_utf8(description.toUtf8())
{
}

FileError::FileError(const QString& action, const QUrl& file, const QString& reason)
    : Error(action + QStringLiteral(" “") + file.toLocalFile() + QStringLiteral("”: ") + reason + u'.')
{
}

LaunchError::LaunchError(const QString& reason)
    : Error(QStringLiteral("ExifTool could not be started: ") + reason)
{
}

CancelledError::CancelledError()
    : Error(QStringLiteral("The read was cancelled."))
{
}

ToolError::ToolError(Payload payload, const QString& messages)
    : Error(std::visit(Describe{}, payload))
    , m_payload(std::move(payload))
    , m_messages(messages)
{
}

}  // namespace Quorbel
