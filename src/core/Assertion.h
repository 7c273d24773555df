#pragma once

#include "core/CoreExport.h"

namespace Quorvex
{

/// A condition that the code relies on. A temporary is made where one has failed; the code goes on behind it when the
/// handler returns, and copes with what it then finds.
class HARNWICK_CORE_API Assertion
{
public:
    /// Gets the expression as it stands in the source, the file's name and the line.
    using Handler = void (*)(const char* expression, const char* file, int line);

    /// Calls the handler when `condition` is false, and does nothing otherwise.
    Assertion(bool condition, const char* expression, const char* file, int line);

    /// Sets the handler of the whole process and gives the former one. A null pointer restores the default, which
    /// reports at fatal level under the category "harnwick.core.Assertion" and returns. Safe from several threads.
    static Handler setHandler(Handler handler);
};

} // namespace Quorvex
