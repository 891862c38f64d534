#include "ProjectDescriptor.h"

#include "DescriptorReader.h"

bool FProjectDescriptor::Load(const FString& FileName, FText& OutFailReason)
{
	return FDescriptorReader::LoadFile(FileName, OutFailReason,
		[&](const FJsonObject& Root) { return FPluginReferenceDescriptor::ReadArray(Root, Plugins, OutFailReason); });
}
