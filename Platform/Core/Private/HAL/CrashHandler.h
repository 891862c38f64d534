#pragma once

/**
 * The open files that the last words of a process go to when a signal such as SIGSEGV kills it. They are known by number, for a
 * handler of signals can hardly do more than write.
 */
namespace CrashLogs
{
void Add(int Handle);
void Remove(int Handle);
}
