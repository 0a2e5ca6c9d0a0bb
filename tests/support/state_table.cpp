#include "state_table.h"

#include "control_lookup.h"
#include "core/shared_state.h"
#include "management/frmMstmnt.h"
#include "platform/controls/form.h"
#include "presentation/frmFind.h"
#include "script_error.h"

#include <QHash>
#include <QJSEngine>
#include <QVariant>
#include <type_traits>

namespace
{

using Reader = std::function<QJSValue(QJSEngine &)>;

QJSValue ScriptValue(QJSEngine &engine, const Lexicon &lexicon)
{
    QJSValue value = engine.newObject();
    value.setProperty(QStringLiteral("DicName"), lexicon.DicName);
    value.setProperty(QStringLiteral("DicPath"), lexicon.DicPath);
    value.setProperty(QStringLiteral("IsSelected"), lexicon.IsSelected);
    value.setProperty(QStringLiteral("IsDeleted"), lexicon.IsDeleted);
    return value;
}

template <typename T> QJSValue ScriptValue(QJSEngine &engine, const T &value)
{
    if constexpr (std::is_same_v<T, bool>)
        return QJSValue(value);
    else if constexpr (std::is_arithmetic_v<T>)
        return QJSValue(static_cast<double>(value));
    else
        return engine.toScriptValue(value);
}

template <typename T> QJSValue ScriptValue(QJSEngine &, const std::shared_ptr<T> &reference)
{
    return QJSValue(reference != nullptr);
}

template <typename T> QJSValue ScriptValue(QJSEngine &engine, const QList<T> &list)
{
    QJSValue array = engine.newArray(static_cast<quint32>(list.size()));
    for (qsizetype i = 0; i < list.size(); ++i)
        array.setProperty(static_cast<quint32>(i), ScriptValue(engine, list[i]));
    return array;
}

template <typename T> QJSValue ScriptValue(QJSEngine &engine, const std::optional<T> &value)
{
    return value ? ScriptValue(engine, *value) : QJSValue(QJSValue::NullValue);
}

#define SHARED(member)                                                                                       \
    {                                                                                                        \
        QStringLiteral(#member), [](QJSEngine &engine) { return ScriptValue(engine, Shared.member); }        \
    }

const QHash<QString, Reader> &SharedReaders()
{
    static const QHash<QString, Reader> readers{
        SHARED(SearchMode),           SHARED(SearchTarget),       SHARED(StopRequested),
        SHARED(CompositeKind),        SHARED(SearchText),         SHARED(CompositeMeaningText),
        SHARED(CompositeExampleText), SHARED(WordPattern),        SHARED(MeaningPattern),
        SHARED(ExamplePattern),       SHARED(IncListCount),       SHARED(IncEntriesPerPage),
        SHARED(ListPageSize),         SHARED(MaxListCount),       SHARED(EntriesPerPage),
        SHARED(WordBookMax),          SHARED(HitCount),           SHARED(ListFirstPos),
        SHARED(ListLastPos),          SHARED(ListPageNo),         SHARED(EntryFirstPos),
        SHARED(EntryLastPos),         SHARED(SearchConnection),   SHARED(ViewConnection),
        SHARED(SearchRecordset),      SHARED(ViewRecordset),      SHARED(IncWords),
        SHARED(IncAutoIDs),           SHARED(HtmlHeaderLines),    SHARED(Lexicons),
        SHARED(CurrentDicName),       SHARED(CurrentDicPath),     SHARED(CatalogueFlag1),
        SHARED(CatalogueFlag2),       SHARED(FontNames),          SHARED(FontSizes),
        SHARED(FontColors),           SHARED(FontBolds),          SHARED(FontItalics),
        SHARED(FontStrikes),          SHARED(FontUnderlines),     SHARED(ListHidden),
        SHARED(SavedPicture17Left),   SHARED(SavedPicture18Left), SHARED(CurrentWord),
        SHARED(CurrentAutoID),        SHARED(SavedIncSearchText), SHARED(EditOpenMode),
        SHARED(SpeechEnabled),        SHARED(CharacterFolder),    SHARED(CharacterFile),
        SHARED(CharacterPath),        SHARED(CharacterID),        SHARED(CharacterMoved),
        SHARED(NoCharacterFile),      SHARED(ConvStopFlag),
    };
    return readers;
}
#undef SHARED

using WindowReader = std::function<QJSValue(QJSEngine &, const frmFind &)>;

#define WINDOW(member)                                                                                       \
    {                                                                                                        \
        QStringLiteral(#member),                                                                             \
            [](QJSEngine &engine, const frmFind &window) { return ScriptValue(engine, window.member); }      \
    }

const QHash<QString, WindowReader> &WindowReaders()
{
    static const QHash<QString, WindowReader> readers{
        WINDOW(TableFirstWord),  WINDOW(TableFirstAutoID), WINDOW(TableLastWord),  WINDOW(PageFirstWord),
        WINDOW(PageFirstAutoID), WINDOW(PageLastWord),     WINDOW(PageLastAutoID), WINDOW(ListClickActive),
        WINDOW(ListClickIndex),  WINDOW(ListClickAutoID),  WINDOW(ListIsFresh),
    };
    return readers;
}
#undef WINDOW

#define FORM(form, member)                                                                                   \
    {                                                                                                        \
        QStringLiteral(#form "." #member), [](QJSEngine &engine, const controls::Form &open) {               \
            return ScriptValue(engine, static_cast<const form &>(open).member);                              \
        }                                                                                                    \
    }

QHash<QString, FormStateReader> &FormReaders()
{
    static QHash<QString, FormStateReader> readers{
        FORM(frmMstmnt, EditState),       FORM(frmMstmnt, DirtyKind),   FORM(frmMstmnt, MainListChanged),
        FORM(frmMstmnt, CloseHandled),    FORM(frmMstmnt, OrigWord),    FORM(frmMstmnt, OrigPronunciation),
        FORM(frmMstmnt, OrigDescription), FORM(frmMstmnt, OrigExample), FORM(frmMstmnt, OrigWordPhrase),
    };
    return readers;
}
#undef FORM

[[noreturn]] void Unknown(const QString &name)
{
    throw ScriptError(QStringLiteral("there is no state \"%1\"").arg(name));
}

QJSValue WindowState(QJSEngine &engine, const QString &member)
{
    const auto reader = WindowReaders().constFind(member);
    if (reader == WindowReaders().constEnd())
        Unknown(member);
    const auto *window = qobject_cast<frmFind *>(FindForm(QStringLiteral("frmFind")));
    if (!window)
        Unknown(member);
    return (*reader)(engine, *window);
}

QJSValue FormState(QJSEngine &engine, const QString &formName, const QString &member)
{
    const controls::Form *form = FindForm(formName);
    const auto reader = FormReaders().constFind(formName + u'.' + member);
    if (reader != FormReaders().constEnd())
        return (*reader)(engine, *form);
    const QVariant property = form->property(member.toLatin1().constData());
    if (!property.isValid())
        Unknown(formName + u'.' + member);
    return engine.toScriptValue(property);
}

} // namespace

QJSValue StateValue(QJSEngine &engine, const QString &name)
{
    const qsizetype dot = name.indexOf(u'.');
    if (dot >= 0 && name.left(dot) != QStringLiteral("frmFind"))
        return FormState(engine, name.left(dot), name.mid(dot + 1));
    const QString member = name.mid(dot + 1);
    const auto shared = SharedReaders().constFind(member);
    return shared != SharedReaders().constEnd() ? (*shared)(engine) : WindowState(engine, member);
}

void AddFormState(const QString &form, const QString &member, FormStateReader reader)
{
    FormReaders().insert(form + u'.' + member, std::move(reader));
}
