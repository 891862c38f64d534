#include "PluginDescriptor.h"

#include "DescriptorReader.h"

bool FPluginDescriptor::Load(const FString& FileName, FText& OutFailReason)
{
	return FDescriptorReader::LoadFile(FileName, OutFailReason,
		[&](const FJsonObject& Root)
		{
			FDescriptorReader Reader(Root, FString(), OutFailReason);
			Reader.Read(TEXT("VersionName"), VersionName);
			Reader.Read(TEXT("FriendlyName"), FriendlyName);
			Reader.Read(TEXT("Description"), Description);
			Reader.Read(TEXT("CanContainContent"), bCanContainContent);
			if (Root.HasField(TEXT("EnabledByDefault")))
			{
				bool bEnabled = false;
				Reader.Read(TEXT("EnabledByDefault"), bEnabled);
				EnabledByDefault = bEnabled ? EPluginEnabledByDefault::Enabled : EPluginEnabledByDefault::Disabled;
			}
			return !Reader.HasFailed() && FModuleDescriptor::ReadArray(Root, Modules, OutFailReason) &&
				FPluginReferenceDescriptor::ReadArray(Root, Plugins, OutFailReason);
		});
}
