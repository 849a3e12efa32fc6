// A language of a few words, for tests of what is shown in the user's language and what stays English. Thread: the main
// thread. For tests only.
#pragma once

#include "core/language/Texts.h"

#include <QHash>
#include <QTranslator>

namespace Quorbel::Test {

/// While it lives, the program speaks these words, by their English texts; all else stays English.
class OtherLanguage final {
    Q_DISABLE_COPY_MOVE(OtherLanguage)

public:
    using Words = QHash<QByteArray, QString>;

    explicit OtherLanguage(Words words) { Texts::use(std::make_shared<Known>(std::move(words))); }
    ~OtherLanguage() { Texts::use(nullptr); }

private:
    class Known final : public QTranslator {
    public:
        explicit Known(Words words)
            : m_words(std::move(words))
        {
        }
        bool isEmpty() const override { return false; }
        QString translate(const char*, const char* text, const char*, int) const override
        {
            return m_words.value(text);
        }

    private:
        Words m_words;
    };
};

}  // namespace Quorbel::Test
