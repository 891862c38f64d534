#pragma once

#include "CoreMinimal.h"

/** A line of a file as an author sees it in an editor. */
struct FDescriptionPlace
{
	/** Index into FDescriptionText::Files. */
	int32 File = 0;

	/** Counted from 1. */
	int32 Line = 0;
};

/** The text of a tool description after its line pass: without comments, inclusions spliced in. */
struct FDescriptionText
{
	/** Whole lines, each with its end. */
	FString Text;

	/** The files that gave lines, the description itself first. A file that is included twice stands here twice. */
	TArray<FString> Files;

	/** Where each line of the text was written. */
	TArray<FDescriptionPlace> Places;

	/**
	 * Names the place of a line of the text as "File:Line".
	 *
	 * @param LineOfText  Counted from 1; a line outside the text stands for the nearest one inside.
	 */
	FString DescribePlace(int32 LineOfText) const;
};

/**
 * Reads a tool description up to the text that the JSON reader gets.
 *
 * Works line by line: the first "//" of a line begins a comment, and a line with "ExternalJson": is replaced by the text of
 * the file that it names. A relative name is taken against the folder of the file in which it stands. A file that would
 * include itself, directly or through others and under any spelling of its path, is refused there with one warning.
 *
 * A description ends at 100,000 included files, at inclusions 200 deep, and at 1 GiB of files: beyond it is given up with one
 * error line.
 *
 * @param OutError  Why the description could not be read; also logged, as a warning or as the error line.
 * @return False if the file is missing or has no line, or if the description goes beyond a limit.
 */
bool ReadDescriptionText(const FString& FilePath, FDescriptionText& OutText, FString& OutError);

/**
 * Reads the text of an included file.
 *
 * @param Path       As it stands in the inclusion.
 * @param Ancestors  The files around the inclusion, outermost first.
 * @return Empty on any failure, which is logged.
 */
FString LoadExternalJson(const FString& Path, TArray<FString> Ancestors);
