#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QStringList>

namespace agent
{

/// What a character file (`*.acs`) holds.
struct CharacterFile {
    QString name;       ///< as a user reads it
    QString voice;      ///< name of a voice of the synthesiser, with its variant: "en-us+f3"
    int pitch = 50;     ///< 0 to 100
    int rate = 165;     ///< words a minute, 80 to 450
    QSize size;         ///< pixels, 32 to 512 each way
    QByteArray drawing; ///< SVG of that size with the layers
};

inline constexpr qsizetype kLargestCharacterFile = qsizetype(1) << 20;

/// The layers that a drawing must have: the figure without face, two pairs of eyes, five mouths.
QString BodyLayer();
QString EyesLayer(bool open);
/// By the number of the shape in agent::Mouth.
QString MouthLayer(int mouth);

/// Reads a character. Only shapes and gradients without any reference to the outside are drawn, in
/// numbers that a painter can bear. Raises 321 for everything else.
CharacterFile ParseCharacterFile(const QByteArray &content);

} // namespace agent
