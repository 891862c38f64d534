#include "Model.h"

#include <algorithm>

namespace
{
bool Contains(const std::vector<std::string>& Texts, const std::string& Text)
{
	return std::find(Texts.begin(), Texts.end(), Text) != Texts.end();
}
}

std::string FTypeRef::ValueText() const
{
	std::string Text = bConst && bPointer ? "const " : "";
	Text += Name;
	if (!Arguments.empty())
	{
		Text += "<";
		for (const FTypeRef& Argument : Arguments)
		{
			Text += (&Argument == &Arguments.front() ? "" : ", ") + Argument.FullText();
		}
		Text += ">";
	}
	return bPointer ? Text + "*" : Text;
}

std::string FTypeRef::FullText() const
{
	return (bConst && !bPointer ? "const " : "") + ValueText() + (bReference ? "&" : "");
}

bool FPropertyInfo::HasFlag(const std::string& Flag) const
{
	return Contains(Flags, Flag);
}

bool FFunctionInfo::HasFlag(const std::string& Flag) const
{
	return Contains(Flags, Flag);
}

std::string FHeaderInfo::BaseName() const
{
	const size_t Slash = File.find_last_of('/');
	const std::string FileName = Slash == std::string::npos ? File : File.substr(Slash + 1);
	return FileName.substr(0, FileName.find_last_of('.'));
}
