// The files of translators against the texts in the code: nothing is missing, nothing is left over, and each text has
// what the English one has. Brings copies up to date by lupdate; the files themselves stay as they are.
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

const QString tree = QString::fromUtf8(QUORBEL_TREE);
const QString lupdate = QString::fromUtf8(QUORBEL_LUPDATE);

struct Message {
    QString source{};
    QString meaning{};
    QStringList forms{};  // one without a count
    bool isCounted = false;
    bool isFinished = true;
};

Message messageAt(QXmlStreamReader& xml)
{
    Message message{ .isCounted = xml.attributes().value(u"numerus"_s) == u"yes" };
    QString text;
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source") {
            message.source = xml.readElementText();
        } else if (xml.name() == u"comment") {
            message.meaning = xml.readElementText();
        } else if (xml.name() == u"translation") {
            message.isFinished = !xml.attributes().hasAttribute(u"type"_s);
            if (!message.isCounted)
                message.forms.append(xml.readElementText());
            while (message.isCounted && xml.readNextStartElement())
                message.forms.append(xml.readElementText());
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

QList<Message> messagesIn(const QString& path)
{
    QFile file(path);
    QList<Message> messages;
    if (!file.open(QFile::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"message")
            messages.append(messageAt(xml));
    return messages;
}

// A copy of a language's file that knows every text of the code.
QList<Message> upToDate(const QString& code)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(u"quorbel_%1.ts"_s.arg(code));
    QFile::copy(tree + u"/translations/quorbel_%1.ts"_s.arg(code), copy);
    QProcess script;
    script.start(tree + u"/translations/lupdate.sh"_s, { lupdate, tree, copy });
    return script.waitForFinished() && script.exitCode() == 0 ? messagesIn(copy) : QList<Message>();
}

// What each form has to have as the English text has it: placeholders, tokens, tags of rich text.
QStringList keptIn(const QString& text)
{
    static const QRegularExpression kept(u"%[0-9]|%[A-Za-z|ü]+%|<[^>]+>"_s);
    QStringList found;
    for (const auto& match : kept.globalMatch(text))
        found.append(match.captured());
    found.sort();
    found.removeDuplicates();
    return found;
}

bool hasLetter(const QString& text)
{
    static const QRegularExpression letter(u"&[^\\s&]"_s);
    return text.contains(letter);
}

// "" where all is well. `isWhole`: a form for more than one, which must say the count.
QString problemOf(const Message& message, const QString& form, bool isWhole)
{
    const QStringList wanted = keptIn(message.source);
    const QStringList kept = keptIn(form);
    if (form.isEmpty())
        return u"is empty"_s;
    if (isWhole ? kept != wanted
                : !std::all_of(kept.begin(), kept.end(), [&](const QString& it) { return wanted.contains(it); }))
        return u"has other placeholders"_s;
    if (isWhole && message.source.contains(u"%n"_s) && !form.contains(u"%n"_s))
        return u"does not say the count"_s;
    if (hasLetter(message.source) != hasLetter(form))
        return u"has another number of menu letters"_s;
    return {};
}

}  // namespace

class tst_Translations : public QObject {
    Q_OBJECT

private slots:
    void englishForms();
    void everyTextOfALanguage_data();
    void everyTextOfALanguage();
};

// English writes the forms of a count into the text, where it has two; only texts with a count may do so.
void tst_Translations::englishForms()
{
    static const QRegularExpression choice(u"\\(s\\)|\\([^()|]*\\|[^()|]*\\)"_s);
    const QList<Message> all = upToDate(u"none"_s);
    QVERIFY(all.size() > 900);
    QStringList wrong;
    for (const Message& message : all)
        if ((message.source.contains(choice) && !message.isCounted) || message.source.trimmed() != message.source)
            wrong.append(message.source);
    QCOMPARE(wrong, QStringList());
}

void tst_Translations::everyTextOfALanguage_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("forms");  // as many as the language counts by
    for (const auto& [code, forms] : { std::pair("ar", 6), std::pair("de", 2), std::pair("es", 2), std::pair("fr", 2),
             std::pair("ja", 1), std::pair("zh_CN", 1) })
        QTest::newRow(code) << QString::fromUtf8(code) << forms;
}

void tst_Translations::everyTextOfALanguage()
{
    QFETCH(QString, code);
    QFETCH(int, forms);
    const QList<Message> all = upToDate(code);
    QVERIFY(all.size() > 900);
    QStringList problems;
    for (const Message& message : all) {
        if (!message.isFinished) {
            problems.append(u"not translated: "_s + message.source);
            continue;
        }
        if (message.isCounted && message.forms.size() != forms)
            problems.append(u"has not all forms: "_s + message.source);
        for (qsizetype i = 0; i < message.forms.size(); ++i) {
            // Arabic has words for none, one and two.
            const bool isWhole = !message.isCounted || forms < 6 || i > 2;
            if (const QString problem = problemOf(message, message.forms.at(i), isWhole); !problem.isEmpty())
                problems.append(u"%1: %2 (%3)"_s.arg(problem, message.forms.at(i), message.source));
        }
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
    QCOMPARE(messagesIn(tree + u"/translations/quorbel_%1.ts"_s.arg(code)).size(), all.size());
}

QTEST_GUILESS_MAIN(tst_Translations)
#include "tst_Translations.moc"
