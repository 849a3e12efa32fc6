#include "core/text/Errors.h"

#include "core/language/Texts.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

struct Describe {
    QString operator()(const ToolError::PerlNotFound& error) const
    {
        return Texts::tr("Perl interpreter not found at %1.").arg(error.perlURL.toLocalFile());
    }
    QString operator()(const ToolError::ExecFailed& error) const
    {
        return Texts::tr("ExifTool exited with code %1: %2").arg(QString::number(error.code), error.standardError);
    }
    QString operator()(const ToolError::DecodeFailed& error) const
    {
        return Texts::tr("Could not decode ExifTool output: %1").arg(error.detail);
    }
    QString operator()(const ToolError::ToolNotFound&) const
    {
        return Texts::tr("Bundled ExifTool could not be located.");
    }
};

}  // namespace

Error::Error(const QString& description)
    : m_description(description)
    , m_utf8(description.toUtf8())
{
}

FileError::FileError(const QString& action, const QUrl& file, const QString& reason)
    :  //: %1 is what failed ("Cannot move “/photos/a.jpg”"), %2 the system's reason
    Error(Texts::tr("%1: %2.").arg(action.arg(file.toLocalFile()), reason))
{
}

LaunchError::LaunchError(const QString& reason)
    : Error(Texts::tr("ExifTool could not be started: %1").arg(reason))
{
}

CancelledError::CancelledError()
    : Error(Texts::tr("The read was cancelled."))
{
}

ToolError::ToolError(Payload payload, const QString& messages)
    : Error(std::visit(Describe{}, payload))
    , m_payload(std::move(payload))
    , m_messages(messages)
{
}

}  // namespace Quorbel
