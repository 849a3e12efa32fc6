#include "core/text/Errors.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

struct Describe {
    QString operator()(const ToolError::PerlNotFound& error) const
    {
        return u"Perl interpreter not found at "_s + error.perlURL.toLocalFile() + u'.';
    }
    QString operator()(const ToolError::ExecFailed& error) const
    {
        return u"ExifTool exited with code "_s + QString::number(error.code) + u": "_s + error.standardError;
    }
    QString operator()(const ToolError::DecodeFailed& error) const
    {
        return u"Could not decode ExifTool output: "_s + error.detail;
    }
    QString operator()(const ToolError::ToolNotFound&) const { return u"Bundled ExifTool could not be located."_s; }
};

}  // namespace

Error::Error(const QString& description)
    : m_description(description)
    , m_utf8(description.toUtf8())
{
}

FileError::FileError(const QString& action, const QUrl& file, const QString& reason)
    : Error(action + u" “"_s + file.toLocalFile() + u"”: "_s + reason + u'.')
{
}

LaunchError::LaunchError(const QString& reason)
    : Error(u"ExifTool could not be started: "_s + reason)
{
}

CancelledError::CancelledError()
    : Error(u"The read was cancelled."_s)
{
}

ToolError::ToolError(Payload payload, const QString& messages)
    : Error(std::visit(Describe{}, payload))
    , m_payload(std::move(payload))
    , m_messages(messages)
{
}

}  // namespace Quorbel
