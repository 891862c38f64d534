#include "Delegates/IDelegateInstance.h"

#include <atomic>

uint64 FDelegateHandle::GenerateNewID()
{
	static std::atomic<uint64> NextID{1};
	return NextID++;
}
