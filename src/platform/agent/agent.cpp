#include "platform/agent/agent.h"

#include "platform/agent/balloon.h"
#include "platform/agent/figure.h"
#include "platform/agent/pure/character_file.h"
#include "platform/agent/speaker.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/file_operations.h"

#include <algorithm>

namespace
{

agent::CallHook callHook;

void Tell(const char16_t *call, const QVariantList &arguments = {})
{
    if (callHook)
        callHook(QString::fromUtf16(call), arguments);
}

agent::Request NextRequest()
{
    static int last = 0;
    return {++last};
}

} // namespace

void agent::SetCallHook(CallHook hook) { callHook = std::move(hook); }

agent::Character::Character(const CharacterFile &file)
    : m_size(file.size), m_figure(std::make_unique<Figure>(file)), m_balloon(std::make_unique<Balloon>()),
      m_speaker(std::make_unique<Speaker>(VoiceSettings{file.voice, file.pitch, file.rate}))
{
    Connect();
}

agent::Character::~Character()
{
    // Its parts tell each other of their end.
    m_figure->disconnect(this);
    m_speaker->disconnect(this);
}

void agent::Character::Connect()
{
    connect(m_speaker.get(), &Speaker::MouthShape, this, [this](Mouth mouth) {
        m_figure->SetMouth(mouth);
        Q_EMIT MouthShape(mouth);
    });
    connect(m_speaker.get(), &Speaker::Began, this, [this](int request) {
        m_balloon->Begin(m_texts.value(request));
        Q_EMIT Began(request);
    });
    connect(m_speaker.get(), &Speaker::Word, this, [this](int request, qsizetype position, qsizetype length) {
        m_balloon->ShowWord(position, length);
        Q_EMIT Word(request, position, length);
    });
    connect(m_speaker.get(), &Speaker::Ended, this, [this](int request) {
        m_texts.remove(request);
        m_balloon->End();
        Q_EMIT Ended(request);
    });
    connect(m_figure.get(), &Figure::Placed, this,
            [this] { m_balloon->StandBy(m_figure->isVisible() ? m_figure->geometry() : QRect()); });
    connect(m_figure.get(), &Figure::SilenceWanted, this, &Character::FallSilent);
    connect(m_figure.get(), &Figure::HideWanted, this, &Character::Hide);
}

void agent::Character::SetLanguageID(int language)
{
    Tell(u"LanguageID", {language});
    if (language != kEnglish)
        throw RuntimeError(RuntimeError::InvalidCall);
}

agent::Request agent::Character::Show()
{
    Tell(u"Show");
    m_figure->show();
    m_figure->raise();
    return NextRequest();
}

agent::Request agent::Character::Speak(const QString &text)
{
    Tell(u"Speak", {text});
    const Request request = NextRequest();
    m_texts.insert(request.ID, text);
    m_speaker->Say(request.ID, text);
    return request;
}

agent::Request agent::Character::MoveTo(int x, int y)
{
    Tell(u"MoveTo", {x, y});
    m_figure->GlideTo({x, y});
    return NextRequest();
}

void agent::Character::FallSilent()
{
    m_speaker->Stop();
    m_texts.clear();
    m_balloon->hide();
}

void agent::Character::Hide()
{
    FallSilent();
    m_figure->hide();
}

bool agent::Character::IsVisible() const { return m_figure->isVisible(); }

bool agent::Character::IsSpeaking() const { return m_speaker->IsSpeaking(); }

QString agent::Character::ShownText() const { return m_balloon->ShownText(); }

agent::CharacterList::~CharacterList() = default;

void agent::CharacterList::Load(const QString &id, const QString &path)
{
    Tell(u"Load", {id, path});
    if (files::Length(path) > kLargestCharacterFile)
        throw RuntimeError(RuntimeError::InvalidFileFormat);
    auto loaded = std::make_unique<Character>(ParseCharacterFile(files::ReadAll(path)));
    std::erase_if(m_characters, [&](const auto &entry) { return entry.first == id; });
    m_characters.emplace_back(id, std::move(loaded));
}

agent::Character &agent::CharacterList::Item(const QString &id) const
{
    const auto entry = std::ranges::find(m_characters, id, [](const auto &each) { return each.first; });
    if (entry == m_characters.end())
        throw RuntimeError(RuntimeError::ObjectNotSet);
    return *entry->second;
}

void agent::CharacterList::Unload(const QString &id)
{
    Tell(u"Unload", {id});
    std::erase_if(m_characters, [&](const auto &entry) { return entry.first == id; });
}

void agent::CharacterList::Clear() { m_characters.clear(); }

void agent::Agent::SetConnected(bool connected)
{
    Tell(u"Connected", {connected});
    m_connected = connected;
    if (!connected)
        m_characters.Clear();
}
