using UnrealBuildTool;

public class Kestrix : ModuleRules
{
	public Kestrix(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		// Sources keep helpers of the same name to themselves.
		bUseUnity = false;

		PublicDependencyModuleNames.AddRange(new string[]
		{
			"Core",
			"CoreUObject",
			"Engine",
		});

		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"Json",
			"PythonScriptPlugin",
			"Slate",
			"SlateCore",
		});
	}
}
