#pragma once

#include "CoreTypes.h"

/** The running application: its project, its mode and its clock. */
class CORE_API FApp
{
public:
	/** Name of the project file without its extension; "None" without a project. */
	static const TCHAR* GetProjectName();
	static bool HasProjectName();

	/** Whether nobody is there to answer a dialog (switch -unattended). */
	static bool IsUnattended();

	/** Time at which the current frame began, in seconds; only differences have a meaning. The main loop sets it. */
	static double GetCurrentTime();
	static void SetCurrentTime(double Seconds);

	/** Seconds from the beginning of the last frame to that of the current one. The main loop sets it. */
	static double GetDeltaTime();
	static void SetDeltaTime(double Seconds);

	/** Whether each frame counts as equally long, however long it took. */
	static bool UseFixedTimeStep();
	static void SetUseFixedTimeStep(bool bVal);

	/** Seconds that a frame counts as when the step is fixed; 1/60 unless set. */
	static double GetFixedDeltaTime();
	static void SetFixedDeltaTime(double Seconds);
};
