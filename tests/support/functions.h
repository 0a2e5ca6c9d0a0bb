#pragma once

#include "scenario.h"

/// Each adds one group of the functions that scripts have.
void AddLifeFunctions(FunctionTable &table);
void AddFolderFunctions(FunctionTable &table);
void AddDataFunctions(FunctionTable &table);
void AddUserFunctions(FunctionTable &table);
void AddSeeFunctions(FunctionTable &table);
void AddBoxFunctions(FunctionTable &table);
void AddPaneFunctions(FunctionTable &table);
void AddMachineFunctions(FunctionTable &table);
void AddCheckFunctions(FunctionTable &table);
