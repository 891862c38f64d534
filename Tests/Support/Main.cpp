#include <gtest/gtest.h>

#include "Misc/CommandLine.h"
#include "TempProject.h"

/** Runs all tests within a project of their own, so that no test writes anywhere else. */
int main(int ArgC, char** ArgV)
{
	testing::InitGoogleTest(&ArgC, ArgV);
	FCommandLine::Set(*FCommandLine::BuildFromArgV(ArgC, ArgV));
	GIsEditor = true;

	const FTempProject Project;
	return RUN_ALL_TESTS();
}
