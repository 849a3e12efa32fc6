// The errors that the metadata engine throws. Thread: any. Knows nothing of who shows them.
#pragma once

#include <QString>
#include <QUrl>

#include <exception>
#include <variant>

namespace Quorbel {

/// Base of every error thrown by the core. description() is the text for the user; what() is the same in UTF-8.
class Error : public std::exception {
public:
    explicit Error(const QString& description);
    QString description() const { return m_description; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_description;
    QByteArray m_utf8;
};

/// The file system refused something: names the file and gives the system's reason.
class FileError final : public Error {
public:
    /// `action` has %1 for the file ("Cannot move “%1”"); `reason` is the system's own text, without a full stop.
    FileError(const QString& action, const QUrl& file, const QString& reason);
};

/// A child process could not be started at all.
class LaunchError final : public Error {
public:
    explicit LaunchError(const QString& reason);
};

/// A read was given up because its stop token was triggered. Never shown as a failure.
class CancelledError final : public Error {
public:
    CancelledError();
};

/// What can go wrong with one run of ExifTool.
class ToolError final : public Error {
public:
    struct PerlNotFound {
        QUrl perlURL{};
        bool operator==(const PerlNotFound&) const = default;
    };
    struct ExecFailed {
        /// The exit status; the number of the signal for a tool that was killed by one.
        qint32 code = 0;
        QString standardError{};  ///< what the tool printed as its error; its standard output when that is empty
        bool operator==(const ExecFailed&) const = default;
    };
    struct DecodeFailed {
        QString detail{};
        bool operator==(const DecodeFailed&) const = default;
    };
    struct ToolNotFound {
        bool operator==(const ToolNotFound&) const = default;
    };
    using Payload = std::variant<PerlNotFound, ExecFailed, DecodeFailed, ToolNotFound>;

    explicit ToolError(Payload payload, const QString& messages = {});
    const Payload& payload() const { return m_payload; }
    /// All that the tool printed to standard error, also when some bytes of it are no text (those are replaced).
    const QString& messages() const { return m_messages; }
    bool operator==(const ToolError& other) const { return m_payload == other.m_payload; }

private:
    Payload m_payload;
    QString m_messages;
};

}  // namespace Quorbel
