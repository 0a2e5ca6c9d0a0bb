#include "platform/agent/pure/character_file.h"

#include "platform/agent/pure/mouth.h"
#include "platform/failure/runtime_error.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>
#include <cmath>
#include <numeric>
#include <optional>

namespace
{

const QByteArray kFirstLine = "Wordmere character 1";

[[noreturn]] void Refuse() { throw RuntimeError(RuntimeError::InvalidFileFormat); }

void Require(bool holds)
{
    if (!holds)
        Refuse();
}

/// Cuts the first line off the rest.
QByteArray TakeLine(QByteArray &rest)
{
    const qsizetype end = rest.indexOf('\n');
    Require(end >= 0);
    QByteArray line = rest.first(end);
    if (line.endsWith('\r'))
        line.chop(1);
    rest.remove(0, end + 1);
    return line;
}

/// The description up to its blank line, by the names of its fields.
QHash<QByteArray, QString> TakeFields(QByteArray &rest)
{
    QHash<QByteArray, QString> fields;
    for (QByteArray line = TakeLine(rest); !line.isEmpty(); line = TakeLine(rest)) {
        const qsizetype colon = line.indexOf(':');
        Require(colon > 0 && !fields.contains(line.first(colon)));
        fields.insert(line.first(colon), QString::fromUtf8(line.sliced(colon + 1)).trimmed());
    }
    return fields;
}

int NumberIn(const QString &text, int least, int greatest)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    Require(isNumber && number >= least && number <= greatest);
    return number;
}

QSize SizeOf(const QString &text)
{
    constexpr int least = 32, greatest = 512;
    const QStringList sides = text.split(u'x');
    Require(sides.size() == 2);
    return {NumberIn(sides[0], least, greatest), NumberIn(sides[1], least, greatest)};
}

bool IsDrawn(QStringView element)
{
    static const QSet<QString> drawn{
        QStringLiteral("svg"),      QStringLiteral("g"),       QStringLiteral("path"),
        QStringLiteral("circle"),   QStringLiteral("ellipse"), QStringLiteral("rect"),
        QStringLiteral("line"),     QStringLiteral("polygon"), QStringLiteral("defs"),
        QStringLiteral("polyline"), QStringLiteral("stop"),    QStringLiteral("linearGradient"),
        QStringLiteral("title"),    QStringLiteral("desc"),    QStringLiteral("radialGradient"),
    };
    return drawn.contains(element.toString());
}

/// Attributes of any value that can only be a word, a colour or a name.
bool IsPlainAttribute(QStringView name)
{
    static const QSet<QString> plain{
        QStringLiteral("id"),           QStringLiteral("fill"),           QStringLiteral("fill-rule"),
        QStringLiteral("stroke"),       QStringLiteral("stroke-linecap"), QStringLiteral("stroke-linejoin"),
        QStringLiteral("stop-color"),   QStringLiteral("gradientUnits"),  QStringLiteral("version"),
        QStringLiteral("spreadMethod"),
    };
    return plain.contains(name.toString());
}

bool IsMeasure(QStringView name)
{
    static const QSet<QString> measures{
        QStringLiteral("d"),
        QStringLiteral("points"),
        QStringLiteral("transform"),
        QStringLiteral("gradientTransform"),
        QStringLiteral("viewBox"),
        QStringLiteral("x"),
        QStringLiteral("y"),
        QStringLiteral("x1"),
        QStringLiteral("y1"),
        QStringLiteral("x2"),
        QStringLiteral("y2"),
        QStringLiteral("cx"),
        QStringLiteral("cy"),
        QStringLiteral("fx"),
        QStringLiteral("fy"),
        QStringLiteral("r"),
        QStringLiteral("rx"),
        QStringLiteral("ry"),
        QStringLiteral("width"),
        QStringLiteral("height"),
        QStringLiteral("offset"),
        QStringLiteral("opacity"),
        QStringLiteral("stroke-width"),
        QStringLiteral("fill-opacity"),
        QStringLiteral("stroke-opacity"),
        QStringLiteral("stop-opacity"),
    };
    return measures.contains(name.toString());
}

/// The numbers of a measure; nothing where one is none that a painter can bear.
std::optional<QList<double>> NumbersOf(const QString &measure)
{
    constexpr double greatest = 1024;
    static const QRegularExpression number(
        QStringLiteral("[-+]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:[eE][-+]?[0-9]+)?"));
    QList<double> numbers;
    for (const QRegularExpressionMatch &match : number.globalMatch(measure)) {
        bool isNumber = false;
        const double value = match.captured().toDouble(&isNumber);
        if (!isNumber || !std::isfinite(value) || std::abs(value) > greatest)
            return std::nullopt;
        numbers.append(value);
    }
    return numbers;
}

/// Whether a painter can bear a measure: a path whose steps, each from where the one before ended, lead far
/// away takes it long, and so does a drawing that is made larger and larger.
bool IsBearable(QStringView name, const QString &measure)
{
    constexpr double farthest = 16384;
    static const QRegularExpression step(QStringLiteral("[mlhvcsqta]"));
    static const QRegularExpression growing(QStringLiteral("matrix|scale|skew"));
    const std::optional<QList<double>> numbers = NumbersOf(measure);
    if (!numbers || (name.endsWith(QLatin1String("ransform")) && measure.contains(growing)))
        return false;
    const double way = std::accumulate(numbers->cbegin(), numbers->cend(), 0.0,
                                       [](double sum, double value) { return sum + std::abs(value); });
    return name != QLatin1String("d") || !measure.contains(step) || way <= farthest;
}

/// What is drawn on the way is bounded: the figure is painted between two of the window's turns.
void CheckElement(const QXmlStreamReader &reader, QSet<QString> &layers, qsizetype &measures)
{
    constexpr qsizetype mostMeasures = 20'000;
    Require(IsDrawn(reader.name()));
    for (const QXmlStreamAttribute &attribute : reader.attributes()) {
        const QString value = attribute.value().toString();
        if (IsPlainAttribute(attribute.qualifiedName())) {
            if (attribute.qualifiedName() == QLatin1String("id"))
                layers.insert(value);
            continue;
        }
        Require(IsMeasure(attribute.qualifiedName()) && IsBearable(attribute.qualifiedName(), value));
        measures += value.size();
        Require(measures <= mostMeasures);
    }
}

QStringList RequiredLayers()
{
    QStringList layers{agent::BodyLayer(), agent::EyesLayer(true), agent::EyesLayer(false)};
    for (const agent::Mouth mouth : agent::kMouths)
        layers.append(agent::MouthLayer(static_cast<int>(mouth)));
    return layers;
}

void CheckDrawing(const QByteArray &drawing, QSize size)
{
    constexpr int mostElements = 500, greatestDepth = 32;
    QXmlStreamReader reader(drawing);
    QSet<QString> layers;
    int elements = 0, depth = 0;
    qsizetype measures = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        Require(token != QXmlStreamReader::DTD && token != QXmlStreamReader::EntityReference &&
                token != QXmlStreamReader::ProcessingInstruction);
        if (token == QXmlStreamReader::EndElement)
            --depth;
        if (token != QXmlStreamReader::StartElement)
            continue;
        Require(++elements <= mostElements && ++depth <= greatestDepth);
        if (elements == 1)
            Require(reader.name() == QLatin1String("svg") &&
                    reader.attributes().value(QLatin1String("viewBox")) ==
                        QStringLiteral("0 0 %1 %2").arg(size.width()).arg(size.height()));
        CheckElement(reader, layers, measures);
    }
    Require(!reader.hasError());
    for (const QString &layer : RequiredLayers())
        Require(layers.contains(layer));
}

} // namespace

QString agent::BodyLayer() { return QStringLiteral("body"); }

QString agent::EyesLayer(bool open)
{
    return open ? QStringLiteral("eyes-open") : QStringLiteral("eyes-closed");
}

QString agent::MouthLayer(int mouth)
{
    static const QStringList layers{QStringLiteral("mouth-closed"), QStringLiteral("mouth-small"),
                                    QStringLiteral("mouth-open"), QStringLiteral("mouth-wide"),
                                    QStringLiteral("mouth-round")};
    return layers.at(mouth);
}

agent::CharacterFile agent::ParseCharacterFile(const QByteArray &content)
{
    constexpr int mostPitch = 100, leastRate = 80, mostRate = 450, longestName = 40;
    static const QRegularExpression voice(QStringLiteral("^[a-z][a-z0-9-]{0,19}(\\+[a-zA-Z0-9]{1,19})?$"));
    Require(content.size() <= kLargestCharacterFile);
    QByteArray rest = content;
    Require(TakeLine(rest) == kFirstLine);
    const QHash<QByteArray, QString> fields = TakeFields(rest);
    CharacterFile file;
    file.name = fields.value("Name");
    Require(!file.name.isEmpty() && file.name.size() <= longestName);
    file.voice = fields.value("Voice");
    Require(voice.match(file.voice).hasMatch());
    file.pitch = NumberIn(fields.value("Pitch"), 0, mostPitch);
    file.rate = NumberIn(fields.value("Rate"), leastRate, mostRate);
    file.size = SizeOf(fields.value("Size"));
    CheckDrawing(rest, file.size);
    file.drawing = rest;
    return file;
}
