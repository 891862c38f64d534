#include "Framework/Application/SlateApplication.h"
#include "Misc/CommandLine.h"

#include <gtest/gtest.h>

namespace
{
/** An off-screen Slate application around all tests, also where only one of them runs: widgets are made before their windows. */
class FSlateEnvironment final : public testing::Environment
{
	virtual void SetUp() override
	{
		FCommandLine::Set(TEXT("-RenderOffScreen"));
		FSlateApplication::Create();
	}
};

const testing::Environment* const SlateEnvironment = testing::AddGlobalTestEnvironment(new FSlateEnvironment);
}
