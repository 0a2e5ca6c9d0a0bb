#pragma once

#include "platform/agent/pure/mouth.h"

#include <QHash>
#include <QObject>
#include <QPoint>
#include <QSize>
#include <QVariantList>
#include <functional>
#include <memory>

/// The speaking character: a figure on the desktop that says English texts.
namespace agent
{

class Balloon;
class Figure;
class Speaker;
struct CharacterFile;

/// What was asked of a character. Requests of all characters are numbered from 1.
struct Request {
    int ID = 0;
};

/// English of the United States, the one language spoken.
inline constexpr int kEnglish = 1033;

/// A loaded character. Nothing that is asked of it waits for its end.
class Character : public QObject
{
    Q_OBJECT
public:
    explicit Character(const CharacterFile &file);
    ~Character() override;

    int LanguageID() const { return kEnglish; }
    /// Raises 5 for another language.
    void SetLanguageID(int language);
    /// Makes the figure appear where it was last.
    Request Show();
    /// Says a text behind those that are still to be said. The figure need not be shown.
    Request Speak(const QString &text);
    /// Size of the figure, pixels.
    int Width() const { return m_size.width(); }
    int Height() const { return m_size.height(); }
    /// Moves the figure; its upper left corner on the screen, pixels.
    Request MoveTo(int x, int y);

    /// Makes the figure go and fall silent, as its menu does.
    void Hide();
    bool IsVisible() const;
    bool IsSpeaking() const;
    /// What the balloon shows.
    QString ShownText() const;
    Figure &TheFigure() const { return *m_figure; }

Q_SIGNALS:
    void Began(int request);
    void Word(int request, qsizetype position, qsizetype length);
    void MouthShape(agent::Mouth mouth);
    void Ended(int request);

private:
    void Connect();
    void FallSilent();

    QSize m_size;
    QHash<int, QString> m_texts; ///< still to be said
    std::unique_ptr<Figure> m_figure;
    std::unique_ptr<Balloon> m_balloon;
    std::unique_ptr<Speaker> m_speaker;
};

/// The characters that are loaded, by their names.
class CharacterList
{
public:
    ~CharacterList();
    /// Loads a character file (drive path) under a name, in the place of one that has it. Raises 53 where
    /// there is no file, 321 for a file that is no character, and what reading raises.
    void Load(const QString &id, const QString &path);
    /// Raises 91 where none of that name is loaded.
    Character &Item(const QString &id) const;
    /// Does nothing where none of that name is loaded.
    void Unload(const QString &id);
    void Clear();

private:
    std::vector<std::pair<QString, std::unique_ptr<Character>>> m_characters;
};

/// The service.
class Agent : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;
    bool Connected() const { return m_connected; }
    /// Disconnected, it keeps no character.
    void SetConnected(bool connected);
    CharacterList &Characters() { return m_characters; }

private:
    bool m_connected = false;
    CharacterList m_characters;
};

/// Told of every call to the service and to its characters, by name. Empty: nobody is.
using CallHook = std::function<void(const QString &call, const QVariantList &arguments)>;
void SetCallHook(CallHook hook);

} // namespace agent
