#pragma once

#include "Misc/Char.h"

#include <cstring>

/** Lower case for four code units at once: the folding that comparing, hashing and the name table share. */
struct FCaseFolding
{
	static constexpr uint64 BeyondAscii = 0xFF80FF80FF80FF80ULL;

	/** Reads Count (1 to 3) code units; what is missing is zero. */
	static uint64 Load(const TCHAR* Text, int32 Count)
	{
		uint64 Block = Text[0];
		Block |= Count > 1 ? uint64(Text[1]) << 16 : 0;
		Block |= Count > 2 ? uint64(Text[2]) << 32 : 0;
		return Block;
	}

	static uint64 Load4(const TCHAR* Text)
	{
		uint64 Block;
		std::memcpy(&Block, Text, sizeof(Block));
		return Block;
	}

	static uint64 Lower(uint64 Block)
	{
		if (UNLIKELY(Block & BeyondAscii))
		{
			return LowerBeyondAscii(Block);
		}
		// Bit 7 of a lane is set by the first sum from 'A' on, and by the second one behind 'Z'.
		const uint64 FromA = Block + 0x003F003F003F003FULL;
		const uint64 BehindZ = Block + 0x0025002500250025ULL;
		return Block | ((FromA & ~BehindZ & 0x0080008000800080ULL) >> 2);
	}

	static uint32 Hash(const TCHAR* Text, int32 Length)
	{
		uint64 State = 0x9E3779B97F4A7C15ULL ^ uint64(Length);
		for (; Length >= 4; Length -= 4, Text += 4)
		{
			State = Mix(State ^ Lower(Load4(Text)));
		}
		if (Length)
		{
			State = Mix(State ^ Lower(Load(Text, Length)));
		}
		return uint32(State);
	}

	static bool Equal(const TCHAR* Left, const TCHAR* Right, int32 Length)
	{
		for (; Length >= 4; Length -= 4, Left += 4, Right += 4)
		{
			const uint64 LeftBlock = Load4(Left);
			const uint64 RightBlock = Load4(Right);
			if (LeftBlock != RightBlock && Lower(LeftBlock) != Lower(RightBlock))
			{
				return false;
			}
		}
		return Length == 0 || Lower(Load(Left, Length)) == Lower(Load(Right, Length));
	}

private:
	static uint64 Mix(uint64 State)
	{
		State *= 0xD6E8FEB86659FD93ULL;
		return State ^ (State >> 32);
	}

	static uint64 LowerBeyondAscii(uint64 Block)
	{
		TCHAR Units[4];
		std::memcpy(Units, &Block, sizeof(Units));
		for (TCHAR& Unit : Units)
		{
			Unit = FChar::ToLower(Unit);
		}
		std::memcpy(&Block, Units, sizeof(Block));
		return Block;
	}
};
