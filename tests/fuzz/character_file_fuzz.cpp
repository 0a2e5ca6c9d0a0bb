// A character file: what is not refused can be drawn.

#include "platform/agent/pure/character_file.h"
#include "platform/agent/pure/mouth.h"
#include "platform/failure/runtime_error.h"
#include "require.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace
{

/// Painting wants an application.
void PrepareApplication()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(count, arguments);
}

void Draw(const agent::CharacterFile &file)
{
    QSvgRenderer drawing(file.drawing);
    QImage image(file.size, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    for (const agent::Mouth mouth : agent::kMouths) {
        const QString layer = agent::MouthLayer(static_cast<int>(mouth));
        drawing.render(&painter, layer,
                       drawing.transformForElement(layer).mapRect(drawing.boundsOnElement(layer)));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    PrepareApplication();
    try {
        const agent::CharacterFile file = agent::ParseCharacterFile(
            QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
        Require(!file.name.isEmpty() && file.size.width() >= 32 && file.size.height() <= 512);
        Draw(file);
    } catch (const RuntimeError &failure) {
        Require(failure.number() == RuntimeError::InvalidFileFormat);
    }
    return 0;
}
