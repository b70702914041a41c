// Parts of the program that few sessions need and that want large libraries of the toolkit, which would cost every start:
// each is a library of its own, loaded when it is first called.
#pragma once

#include "base/result.h"

#include <QtGlobal>

namespace Ui {

// The function that a part has under that C name; an error where the part is not to be had. It stays loaded.
Base::Result<QFunctionPointer> FunctionOf(const char* part, const char* function);

}  // namespace Ui
