#pragma once

/// Every test program that includes this header fails each test after which more, or fewer, objects are alive than
/// before it: by the memory accounts and, in debug builds, by the count of all objects. Objects that are to live as
/// long as the process are made before the first test begins.
namespace LiveObjects
{

/// Puts the check in place; gives true.
bool watch();

inline const bool g_Watched = watch();

} // namespace LiveObjects
