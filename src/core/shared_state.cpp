#include "core/shared_state.h"

SharedState Shared;
