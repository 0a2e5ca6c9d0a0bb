#pragma once

#include <QJSValue>
#include <QString>
#include <functional>

class QJSEngine;
namespace controls
{
class Form;
}

/// The value of a shared variable or of a member of the main window by its name, or of a member of
/// another form by "form.member". Arrays come as arrays; an object reference as whether the object
/// exists; the catalogue as objects, null while it was never allocated. Raises ScriptError for a
/// name that nothing bears.
QJSValue StateValue(QJSEngine &engine, const QString &name);

/// Makes a member of a form known that is no property of it.
using FormStateReader = std::function<QJSValue(QJSEngine &, const controls::Form &)>;
void AddFormState(const QString &form, const QString &member, FormStateReader reader);
