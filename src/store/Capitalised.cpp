#include "store/Capitalised.h"

namespace tarvelo::store {

namespace {

// Where a letter has no single capital ("ß"), only the first of those that stand for it is one.
QString capitalisedWord(QStringView word)
{
    const qsizetype first = word.size() > 1 && word.at(0).isHighSurrogate() ? 2 : 1;
    const QString upper = word.first(first).toString().toUpper();
    const qsizetype kept = upper.size() > 1 && upper.at(0).isHighSurrogate() ? 2 : 1;
    return upper.first(kept) + upper.sliced(kept).toLower() +
           word.sliced(first).toString().toLower();
}

} // namespace

QString capitalised(const QString &text)
{
    QString result;
    result.reserve(text.size());
    const QStringView view(text);
    qsizetype begin = 0;
    for (qsizetype i = 0; i <= view.size(); ++i) {
        if (i < view.size() && !view.at(i).isSpace())
            continue;
        if (begin < i)
            result += capitalisedWord(view.sliced(begin, i - begin));
        if (i < view.size())
            result += view.at(i);
        begin = i + 1;
    }
    return result;
}

} // namespace tarvelo::store
