#include "PluginReferenceDescriptor.h"

#include "DescriptorReader.h"

bool FPluginReferenceDescriptor::ReadArray(
	const FJsonObject& In, TArray<FPluginReferenceDescriptor>& OutPlugins, FText& OutFailReason)
{
	FDescriptorReader Root(In, FString(), OutFailReason);
	Root.ReadObjects(TEXT("Plugins"),
		[&OutPlugins](FDescriptorReader& Reader)
		{
			FPluginReferenceDescriptor& Reference = OutPlugins.AddDefaulted_GetRef();
			Reader.ReadRequired(TEXT("Name"), Reference.Name);
			Reader.Read(TEXT("Enabled"), Reference.bEnabled);
			Reader.Read(TEXT("Optional"), Reference.bOptional);
		});
	return !Root.HasFailed();
}
