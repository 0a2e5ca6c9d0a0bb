#pragma once

#include <QString>
#include <random>

/// Random text of characters that fold, pair and sort in every way there is.
inline QString RandomText(std::mt19937 &random, size_t longest = 8)
{
    static const std::u32string kAlphabet =
        U"aAbzZ09 　-'ａＡｶｶﾊﾞﾟがガｱあアーｰ漢字亜éÉ\U0001F600\U00010400\U00010428｡。";
    QString text;
    for (size_t length = random() % (longest + 1); length > 0; --length)
        text.append(QStringView(QChar::fromUcs4(kAlphabet[random() % kAlphabet.size()])));
    return text;
}
