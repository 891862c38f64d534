#pragma once

#include "Misc/OutputDevice.h"

/**
 * For whoever started the editor from a shell and does not watch its log: errors, warnings and what is of level Display on the
 * standard error, what Python prints on the standard output.
 */
class FTerminalReport final : public FOutputDevice
{
public:
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;
};
