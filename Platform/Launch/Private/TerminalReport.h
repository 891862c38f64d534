#pragma once

#include "Misc/OutputDevice.h"

/** Tells warnings and errors on the standard error, for whoever started the editor from a shell and does not watch its log. */
class FTroubleReport final : public FOutputDevice
{
public:
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;
};
