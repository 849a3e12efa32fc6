#include "core/tool/TagDump.h"

#include <QStringList>

#include <optional>

namespace Quorbel::TagDump {

using namespace Qt::StringLiterals;

namespace {

// What a character stands for behind a backslash; itself, if not listed.
char unescaped(char c)
{
    switch (c) {
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    default:
        return c;
    }
}

// "Array(Array("SourceFile" => "/a.jpg", "IPTC:Keywords" => Array("b", 1.10)), …);"
class Reader {
public:
    explicit Reader(const QByteArray& answer)
        : m_text(answer)
    {
    }

    // One file's array; nothing at the end of the answer, or where it makes no sense.
    std::optional<FileTags> file()
    {
        FileTags tags;
        if (!take("Array("))
            return std::nullopt;
        while (!take(")")) {
            const auto key = value();
            if (!key || !take("=>") || !values(tags[QString::fromUtf8(*key)]))
                return std::nullopt;
            take(",");
        }
        return tags;
    }

    bool take(const QByteArray& token)
    {
        while (m_at < m_text.size() && (m_text[m_at] == ' ' || m_text[m_at] == '\n'))
            ++m_at;
        if (!QByteArrayView(m_text).sliced(m_at).startsWith(token))
            return false;
        m_at += token.size();
        return true;
    }

private:
    bool values(QList<QByteArray>& list)
    {
        if (!take("Array(")) {
            const auto single = value();
            if (single)
                list.append(*single);
            return single.has_value();
        }
        while (!take(")")) {
            if (!values(list))
                return false;
            take(",");
        }
        return true;
    }

    std::optional<QByteArray> value() { return take("\"") ? quoted() : number(); }

    std::optional<QByteArray> quoted()
    {
        QByteArray bytes;
        for (; m_at < m_text.size(); ++m_at) {
            char c = m_text[m_at];
            if (c == '"') {
                ++m_at;
                return bytes;
            }
            if (c == '\\' && m_at + 1 < m_text.size()) {
                c = m_text[++m_at];
                if (c == 'x') {
                    c = char(m_text.mid(m_at + 1, 2).toInt(nullptr, 16));
                    m_at += 2;
                } else {
                    c = unescaped(c);
                }
            }
            bytes += c;
        }
        return std::nullopt;
    }

    std::optional<QByteArray> number()
    {
        const qsizetype from = m_at;
        while (m_at < m_text.size() && QByteArrayView("+-.0123456789Ee").contains(m_text[m_at]))
            ++m_at;
        return m_at > from ? std::optional(m_text.sliced(from, m_at - from)) : std::nullopt;
    }

    QByteArray m_text;
    qsizetype m_at = 0;
};

}  // namespace

QStringList options()
{
    return { u"-php"_s, u"-G1"_s, u"-a"_s, u"-n"_s, u"-b"_s };
}

QHash<QByteArray, FileTags> parse(const QByteArray& answer)
{
    QHash<QByteArray, FileTags> files;
    Reader reader(answer);
    reader.take("Array(");
    while (auto tags = reader.file()) {
        const QList<QByteArray> path = tags->take(u"SourceFile"_s);
        if (!path.isEmpty())
            files.insert(path.constFirst(), *tags);
        reader.take(",");
    }
    return files;
}

}  // namespace Quorbel::TagDump
