#include "platform/agent/pure/mouth.h"

namespace
{

/// What opens the mouth further than the small shape of most consonants, by the first sign of a sound.
struct Shape {
    QLatin1String signs;
    agent::Mouth mouth;
};

agent::Mouth ShapeOf(QChar sign, std::initializer_list<Shape> shapes)
{
    for (const Shape &shape : shapes)
        if (shape.signs.contains(sign))
            return shape.mouth;
    return agent::Mouth::Small;
}

} // namespace

agent::Mouth agent::MouthOfPhoneme(const QString &name)
{
    if (name.isEmpty() || name.startsWith(u'_'))
        return Mouth::Closed;
    // The first half of these is said with the tongue, the lips wait for the second.
    const bool isAffricate = name.size() > 1 && (name[1] == u'S' || name[1] == u'Z');
    return ShapeOf(isAffricate ? name[1] : name[0], {{QLatin1String("pbm:|"), Mouth::Closed},
                                                     {QLatin1String("aAV"), Mouth::Open},
                                                     {QLatin1String("eEiIj"), Mouth::Wide},
                                                     {QLatin1String("oO0uUwSZ"), Mouth::Round}});
}

agent::Mouth agent::MouthOfLetter(QChar letter)
{
    if (!letter.isLetterOrNumber())
        return Mouth::Closed;
    return ShapeOf(letter.toLower(), {{QLatin1String("pbm"), Mouth::Closed},
                                      {QLatin1String("a"), Mouth::Open},
                                      {QLatin1String("eiy"), Mouth::Wide},
                                      {QLatin1String("ouw"), Mouth::Round}});
}
