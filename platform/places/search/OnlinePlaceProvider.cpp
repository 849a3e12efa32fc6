#include "platform/places/search/OnlinePlaceProvider.h"

#include "platform/places/search/PhotonAnswer.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QTimer>
#include <QUrlQuery>

#include <algorithm>

using namespace std::chrono_literals;

namespace Quorbel {

using namespace Qt::StringLiterals;

struct OnlinePlaceProvider::Service {
    OnlinePlaceOptions options{};
    QNetworkAccessManager network{};
    QDeadlineTimer silence{ 0 };  // nothing is sent before it expires
    int refusals = 0;  // in a row
};

namespace {

using Suggestions = QList<PlaceSuggestion>;

constexpr int fewestLetters = 3;
constexpr qint64 longestAnswer = 1 << 20;  // bytes; eight places take about four thousand
constexpr int tooManyRequests = 429;

QUrl addressOf(const QUrl& endpoint, const PlaceQuery& query)
{
    QUrl url = endpoint;
    auto path = url.path();
    while (path.endsWith(u'/'))
        path.chop(1);
    url.setPath(path.endsWith(u"/api") ? path : path + u"/api"_s);
    QUrlQuery parameters(url);
    // QUrlQuery would leave a plus sign as it is, which servers read as a blank.
    parameters.addQueryItem(u"q"_s, QString::fromLatin1(QUrl::toPercentEncoding(query.text.trimmed())));
    parameters.addQueryItem(u"limit"_s, QString::number(query.limit));
    // The service knows these, and answers any other with an error.
    if (const auto code = query.locale.name().section(u'_', 0, 0); code == u"de" || code == u"en" || code == u"fr")
        parameters.addQueryItem(u"lang"_s, code);
    if (query.bias) {
        parameters.addQueryItem(u"lat"_s, QString::number(query.bias->latitude, 'f', 2));
        parameters.addQueryItem(u"lon"_s, QString::number(query.bias->longitude, 'f', 2));
    }
    url.setQuery(parameters);
    return url;
}

QString userAgent()
{
    const auto name = QCoreApplication::applicationName();
    const auto version = QCoreApplication::applicationVersion();
    return (name.isEmpty() ? u"Quorbel"_s : name) + (version.isEmpty() ? QString() : u'/' + version);
}

// One question: waits for the pause, sends it, waits for the answer. Destroying it ends whatever is under way.
class OnlineRequest final : public QObject, public PlaceRequest {
public:
    OnlineRequest(
        std::shared_ptr<OnlinePlaceProvider::Service> service, PlaceQuery query, PlaceCallback<Suggestions> answer)
        : m_service(std::move(service))
        , m_query(std::move(query))
        , m_answer(std::move(answer))
    {
        const auto letters = std::count_if(
            m_query.text.begin(), m_query.text.end(), [](QChar c) { return c.isLetterOrNumber() || c.isSurrogate(); });
        if (letters < fewestLetters)
            after(0ms, &OnlineRequest::findNothing);
        else
            after(m_service->options.pause, &OnlineRequest::send);
    }

    ~OnlineRequest() override { dropReply(); }
    Q_DISABLE_COPY_MOVE(OnlineRequest)

private:
    // One thing at a time is waited for.
    void after(std::chrono::milliseconds delay, void (OnlineRequest::*step)())
    {
        m_timer.disconnect(this);
        connect(&m_timer, &QTimer::timeout, this, step);
        m_timer.setSingleShot(true);
        m_timer.start(delay);
    }

    void send()
    {
        if (!m_service->silence.hasExpired()) {
            finish({ {}, PlaceError::rateLimited, u"The place service asks for a pause"_s });
            return;
        }
        QNetworkRequest request(addressOf(m_service->options.endpoint, m_query));
        request.setHeader(QNetworkRequest::UserAgentHeader, userAgent());
        request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
        request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
        request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
        request.setMaximumRedirectsAllowed(3);
        m_reply = m_service->network.get(request);
        connect(m_reply, &QNetworkReply::finished, this, [this] { readReply(); });
        connect(m_reply, &QNetworkReply::downloadProgress, this, [this](qint64 received) {
            if (received > longestAnswer)
                finish({ {}, PlaceError::badAnswer, u"The place service sent too much"_s });
        });
        after(m_service->options.timeout, &OnlineRequest::giveUp);
    }

    void findNothing() { finish({}); }
    void giveUp() { finish({ {}, PlaceError::offline, u"The place service did not answer in time"_s }); }

    void readReply()
    {
        const auto status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (status == tooManyRequests) {
            const auto wait = secondsToWait(
                m_reply->rawHeader("Retry-After"), ++m_service->refusals, QDateTime::currentDateTimeUtc());
            m_service->silence = QDeadlineTimer(std::chrono::seconds(wait));
            finish({ {}, PlaceError::rateLimited, u"The place service asks for a pause"_s });
        } else if (status >= 300) {
            finish({ {}, PlaceError::badAnswer, u"The place service answered with status %1"_s.arg(status) });
        } else if (m_reply->error() != QNetworkReply::NoError) {
            finish({ {}, PlaceError::offline, u"The place service cannot be reached"_s });
        } else {
            m_service->refusals = 0;
            const auto places = readPhotonAnswer(m_reply->readAll());
            if (places)
                finish({ places->first(std::min<qsizetype>(m_query.limit, places->size())), PlaceError::none, {} });
            else
                finish({ {}, PlaceError::badAnswer, u"The place service answered something else"_s });
        }
    }

    // The callback may destroy this object: nothing of it is touched afterwards.
    void finish(const PlaceResult<Suggestions>& result)
    {
        if (!m_answer)
            return;
        m_timer.stop();
        dropReply();
        const auto answer = std::exchange(m_answer, nullptr);
        answer(result);
    }

    void dropReply()
    {
        if (!m_reply)
            return;
        m_reply->disconnect(this);
        m_reply->abort();
        m_reply->deleteLater();
        m_reply.clear();
    }

    std::shared_ptr<OnlinePlaceProvider::Service> m_service;
    PlaceQuery m_query;
    PlaceCallback<Suggestions> m_answer;
    QPointer<QNetworkReply> m_reply{};
    QTimer m_timer{};
};

}  // namespace

OnlinePlaceProvider::OnlinePlaceProvider(const OnlinePlaceOptions& options)
    : m_service(std::make_shared<Service>())
{
    m_service->options = options;
}

OnlinePlaceProvider::~OnlinePlaceProvider() = default;

PlaceToken OnlinePlaceProvider::suggest(const PlaceQuery& query, PlaceCallback<QList<PlaceSuggestion>> answer)
{
    return std::make_unique<OnlineRequest>(m_service, query, std::move(answer));
}

PlaceToken OnlinePlaceProvider::resolve(const PlaceSuggestion& suggestion, PlaceCallback<Placemark> answer)
{
    if (suggestion.placemark)
        answer({ *suggestion.placemark, PlaceError::none, {} });
    else
        answer({ {}, PlaceError::noResult, {} });
    return nullptr;
}

PlaceToken OnlinePlaceProvider::reverse(const GeoPoint&, const QLocale&, PlaceCallback<Placemark> answer)
{
    answer({ {}, PlaceError::noResult, {} });
    return nullptr;
}

QString OnlinePlaceProvider::attribution() const
{
    return u"Online places: © OpenStreetMap contributors."_s;
}

}  // namespace Quorbel
