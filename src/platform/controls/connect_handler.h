#pragma once

#include "platform/controls/handler.h"

#include <QObject>

namespace controls
{

/// Runs a form's handler at a control's signal, whose arguments it does not take.
template <typename Form, typename Sender, typename Signal>
void ConnectHandler(Sender *sender, Signal signal, Form *form, void (Form::*handler)())
{
    QObject::connect(sender, signal, form,
                     [form, handler] { RunHandler([form, handler] { (form->*handler)(); }); });
}

} // namespace controls
