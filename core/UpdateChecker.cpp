#include "core/UpdateChecker.h"

#include "core/language/Texts.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace Quorbel::UpdateChecker {

using namespace Qt::StringLiterals;

namespace {

QString stringMember(const QJsonObject& feed, const QString& member)
{
    const QJsonValue value = feed.value(member);
    if (!value.isString())
        throw Error(Texts::tr("The update feed’s “%1” is missing or no text.").arg(member));
    return value.toString();
}

// Qt's decoder holds every number that is whole and fits 64 bits as an integer, all others as a double.
qint64 integerMember(const QJsonObject& feed, const QString& member)
{
    const QJsonValue value = feed.value(member);
    if (value.toVariant().typeId() != QMetaType::LongLong)
        throw Error(Texts::tr("The update feed’s “%1” is missing or no whole number.").arg(member));
    return value.toInteger();
}

std::optional<QString> optionalStringMember(const QJsonObject& feed, const QString& member)
{
    const QJsonValue value = feed.value(member);
    if (value.isUndefined() || value.isNull())
        return std::nullopt;
    return stringMember(feed, member);
}

UpdateCheckResult failed(const QString& error)
{
    return { UpdateCheckResult::Failed{ error } };
}

UpdateCheckResult resultOf(QNetworkReply& reply, qint64 currentBuild)
{
    // A status outside 2xx is an error of Qt's too; the status says more.
    const QVariant status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (status.isValid() && (status.toInt() < 200 || status.toInt() > 299))
        return failed(Texts::tr("Bad server response: HTTP status %1.").arg(status.toInt()));
    if (reply.error() != QNetworkReply::NoError)
        return failed(reply.errorString());
    try {
        return result(decode(reply.readAll()), currentBuild);
    } catch (const Error& error) {
        return failed(error.description());
    }
}

}  // namespace

UpdateManifest decode(const QByteArray& body)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(body, &parseError);
    if (parseError.error != QJsonParseError::NoError)
        throw Error(Texts::tr("The update feed is no valid JSON: %1.").arg(parseError.errorString()));
    if (!document.isObject())
        throw Error(Texts::tr("The update feed is no JSON object."));
    const QJsonObject feed = document.object();
    return { stringMember(feed, u"version"_s), integerMember(feed, u"build"_s), stringMember(feed, u"url"_s),
        optionalStringMember(feed, u"notes"_s) };
}

UpdateCheckResult result(const UpdateManifest& manifest, qint64 currentBuild)
{
    if (manifest.build <= currentBuild)
        return { UpdateCheckResult::UpToDate{} };
    return { UpdateCheckResult::Available{ manifest } };
}

void check(const QUrl& manifestURL, qint64 currentBuild, QNetworkAccessManager& session, QObject* context,
    std::function<void(const UpdateCheckResult&)> done)
{
    QNetworkReply* reply = session.get(QNetworkRequest(manifestURL));
    QObject::connect(reply, &QNetworkReply::finished, context, [reply, currentBuild, done = std::move(done)] {
        reply->deleteLater();
        done(resultOf(*reply, currentBuild));
    });
    QObject::connect(context, &QObject::destroyed, reply, [reply](QObject* dying) {
        // abort() announces the end at once, and the dying context is still connected.
        QObject::disconnect(reply, nullptr, dying, nullptr);
        reply->abort();
        reply->deleteLater();
    });
}

}  // namespace Quorbel::UpdateChecker
