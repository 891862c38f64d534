#include "Framework/Application/SlateApplication.h"
#include "Misc/CommandLine.h"
#include "Modules/ModuleManager.h"

#include <gtest/gtest.h>

namespace
{
/** An off-screen Slate application with the editor's style, around all tests. */
class FSlateEnvironment final : public testing::Environment
{
	virtual void SetUp() override
	{
		FCommandLine::Set(TEXT("-RenderOffScreen"));
		FSlateApplication::Create();
		FModuleManager::Get().LoadModuleChecked("EditorStyle");
	}

	virtual void TearDown() override
	{
		FModuleManager::Get().UnloadModule("EditorStyle");
		FSlateApplication::Shutdown();
	}
};

const testing::Environment* const SlateEnvironment = testing::AddGlobalTestEnvironment(new FSlateEnvironment);
}
