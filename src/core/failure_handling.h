#pragma once

#include "platform/failure/runtime_error.h"

#include <QString>
#include <functional>

/// The text of the generic box for a failure.
QString FailureText(const RuntimeError &failure);

/// The default handling: gives up the objects of the operation that failed, puts pointer and start
/// button back, and tells the user. The program goes on.
void HandleByDefault(const RuntimeError &failure);

/// Tells the user that the dictionary in use is missing or empty.
void ShowMissingDatabase(const QString &lastLine);
/// The last line of that message as the Enter key and the page writers have it.
QString MissingDatabaseHint();

/// Tells the user that printing cannot be done.
void ShowPrintingUnsupported();

/// Runs a procedure that shows records: failures -2147467259 and 5 tell of the missing dictionary,
/// others show the generic box. Nothing is raised.
void ShowRecords(const std::function<void()> &procedure);

/// Runs a procedure whose failures all show the generic box. Nothing is raised.
void ShowFailures(const std::function<void()> &procedure);

/// Runs a step; its failure goes to the default handling.
void GuardStep(const std::function<void()> &step);

/// Closes and forgets the connection and the recordset under which records are shown.
void ReleaseView();

/// The same for these and for those of a list search.
void ReleaseDataObjects();
