#include "PythonTest.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonArray, IsAListOfOneType)
{
	EXPECT_TRUE(RunPython(TEXT("a = unreal.Array(str)\na.append('b')\na.extend(['a', 'c'])\na.insert(0, 'z')")));
	EXPECT_EQ(Evaluate(TEXT("list(a)")), TEXT("['z', 'b', 'a', 'c']"));
	EXPECT_EQ(Evaluate(TEXT("(len(a), a[0], a[-1], a[1:3], 'a' in a, a.index('a'), a.count('q'))")),
		TEXT("(4, 'z', 'c', ['b', 'a'], True, 2, 0)"));
	EXPECT_EQ(Evaluate(TEXT("type(a[1:3]).__name__")), TEXT("'Array'"));
	EXPECT_TRUE(RunPython(TEXT("a.sort()\na.reverse()\nlast = a.pop()\na.remove('z')")));
	EXPECT_EQ(Evaluate(TEXT("(last, a)")), TEXT("('a', ['c', 'b'])"));
	EXPECT_TRUE(RunPython(TEXT("a[0] = 'x'\na[1:] = ['y', 'w']\ndel a[0]\na += ['v']")));
	EXPECT_EQ(Evaluate(TEXT("a + ['u']")), TEXT("['y', 'w', 'v', 'u']"));
	EXPECT_EQ(Evaluate(TEXT("a")), TEXT("['y', 'w', 'v']"));
}

TEST(PythonArray, RefusesOtherTypesAndChangesNothing)
{
	EXPECT_TRUE(RunPython(TEXT("a = unreal.Array.cast(int, [1, 2])")));
	EXPECT_EQ(ErrorOf(TEXT("a.append('x')")), TEXT("TypeError: expected int, got str"));
	EXPECT_EQ(ErrorOf(TEXT("a[0] = 'x'")), TEXT("TypeError: expected int, got str"));
	EXPECT_EQ(ErrorOf(TEXT("a.extend([3, 'x'])")), TEXT("TypeError: expected int, got str"));
	EXPECT_EQ(ErrorOf(TEXT("a[5]")), TEXT("IndexError: Array index out of range"));
	EXPECT_EQ(ErrorOf(TEXT("a[-3]")), TEXT("IndexError: Array index out of range"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.Array(list)")), TEXT("TypeError: values of type 'list' cannot be elements"));
	EXPECT_EQ(Evaluate(TEXT("a")), TEXT("[1, 2]"));
}

TEST(PythonArray, ComparesItemByItemWithLists)
{
	EXPECT_TRUE(RunPython(TEXT("a = unreal.Array.cast(int, [1, 2])")));
	EXPECT_EQ(Evaluate(TEXT("(a == [1, 2], a == [2, 1], [1, 2] == a, a != (1, 2), a < [1, 3], a == a.copy())")),
		TEXT("(True, False, True, True, True, True)"));
}

TEST(PythonArray, ResizesWithDefaults)
{
	EXPECT_TRUE(RunPython(TEXT("a = unreal.Array.cast(unreal.PythonTestPlace, [{'x': 1}])\na.resize(2)")));
	EXPECT_EQ(Evaluate(TEXT("[p.to_tuple() for p in a]")), TEXT("[(1.0, 7, ''), (0.0, 7, '')]"));
	EXPECT_TRUE(RunPython(TEXT("a.clear()")));
	EXPECT_EQ(Evaluate(TEXT("len(a)")), TEXT("0"));
	EXPECT_EQ(ErrorOf(TEXT("a.resize(-1)")), TEXT("ValueError: the length of an Array is between 0 and 2147483647"));
}

TEST(PythonArray, ParameterTakesAnyIterableButNoText)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_names(str(i) for i in range(2))")), TEXT("[Name('0'), Name('1')]"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_names(unreal.PythonTestFunctions.echo_names(['a']))")),
		TEXT("[Name('a')]"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestFunctions.echo_names('ab')")),
		TEXT("TypeError: PythonTestFunctions.echo_names(): argument 'value' (pos 1): expected iterable of Name, got str"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestFunctions.echo_names(1/0 for i in range(2))")),
		TEXT("ZeroDivisionError: division by zero"));
}

TEST(PythonSet, IsASetInTheOrderOfAdding)
{
	EXPECT_TRUE(RunPython(TEXT("s = unreal.Set(str)\ns.add('b')\ns.add('a')\ns.add('B')\ns.update(['c'])")));
	EXPECT_EQ(Evaluate(TEXT("(len(s), 'A' in s, 5 in s)")), TEXT("(3, True, False)"));
	EXPECT_TRUE(RunPython(TEXT("s.discard('nothing')\ns.remove('c')")));
	EXPECT_EQ(ErrorOf(TEXT("s.remove('c')")), TEXT("KeyError: 'c'"));
	EXPECT_EQ(Evaluate(TEXT("[x.lower() for x in s]")), TEXT("['b', 'a']"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_set({'x'}) == {'x'}")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Set.cast(int, [1, 2]) | {3}")), TEXT("Set([1, 2, 3])"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Set.cast(int, [1, 2]) & {2, 3}")), TEXT("Set([2])"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Set.cast(int, [1, 2]).issubset([1, 2, 3])")), TEXT("True"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.Set(unreal.Text)")), TEXT("TypeError: values of type 'Text' have no hash"));
}

TEST(PythonMap, IsADictionaryInTheOrderOfAdding)
{
	EXPECT_TRUE(RunPython(TEXT("m = unreal.Map(str, int)\nm['b'] = 1\nm['a'] = 2\nm.update({'c': 3}, d=4)")));
	EXPECT_EQ(Evaluate(TEXT("(len(m), m['B'], 'A' in m, m.get('x'), m.get('x', 9), list(m), list(m.values()))")),
		TEXT("(4, 1, True, None, 9, ['b', 'a', 'c', 'd'], [1, 2, 3, 4])"));
	EXPECT_TRUE(RunPython(TEXT("del m['b']\npopped = m.pop('c')")));
	EXPECT_EQ(
		Evaluate(TEXT("(popped, m.pop('c', None), dict(m), m == {'a': 2, 'd': 4})")), TEXT("(3, None, {'a': 2, 'd': 4}, True)"));
	EXPECT_EQ(ErrorOf(TEXT("m['nothing']")), TEXT("KeyError: 'nothing'"));
	EXPECT_EQ(ErrorOf(TEXT("m.update({'e': 1, 'f': 'x'})")), TEXT("TypeError: expected int, got str"));
	EXPECT_EQ(Evaluate(TEXT("m")), TEXT("{'a': 2, 'd': 4}"));
}

TEST(PythonMap, ParameterTakesMappings)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_map({'a': 1.5})")), TEXT("{'a': 1.5}"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestFunctions.echo_map([1])")),
		TEXT("TypeError: PythonTestFunctions.echo_map(): argument 'value' (pos 1): expected mapping of str to float, got list"));
}

TEST(PythonArray, RepeatsAndConcatenates)
{
	EXPECT_TRUE(RunPython(TEXT("a = b = unreal.Array.cast(str, ['x', 'y'])\na *= 2")));
	EXPECT_EQ(Evaluate(TEXT("(a is b, a, a * 0, 2 * unreal.Array.cast(int, [1]), a * -1)")),
		TEXT("(True, ['x', 'y', 'x', 'y'], [], [1, 1], [])"));
	EXPECT_EQ(ErrorOf(TEXT("a * 2**40")), TEXT("MemoryError"));
	EXPECT_EQ(ErrorOf(TEXT("a * 'x'")), TEXT("TypeError: can't multiply sequence by non-int of type 'str'"));
	EXPECT_EQ(Evaluate(TEXT("(a + b)[2:] + ('z',)")), TEXT("['x', 'y', 'x', 'y', 'x', 'y', 'z']"));
}

TEST(PythonArray, FindsWithinBoundsAndSortsStably)
{
	EXPECT_TRUE(RunPython(TEXT("a = unreal.Array.cast(str, ['bb', 'a', 'cc', 'a'])")));
	EXPECT_EQ(Evaluate(TEXT("(a.index('a', 2), 'cc' in a, None in a, list(reversed(a)))")),
		TEXT("(3, True, False, ['a', 'cc', 'a', 'bb'])"));
	EXPECT_EQ(ErrorOf(TEXT("a.index('a', 2, 3)")), TEXT("ValueError: 'a' is not in list"));
	EXPECT_TRUE(RunPython(TEXT("a.sort(key=len, reverse=True)\ndel a[::3]\na[0:0] = ['n']")));
	EXPECT_EQ(Evaluate(TEXT("a")), TEXT("['n', 'cc', 'a']"));
}

TEST(PythonArray, MayChangeWhileItIsWalkedOrWritten)
{
	EXPECT_TRUE(
		RunPython(TEXT("a = unreal.Array.cast(int, range(6))\nseen = []\nfor x in a:\n    seen.append(x)\n    a.remove(x)")));
	EXPECT_EQ(Evaluate(TEXT("(seen, a)")), TEXT("([0, 2, 4], [1, 3, 5])"));
	EXPECT_TRUE(RunPython(TEXT("class Emptier:\n    def __index__(self):\n        a.clear()\n        return 7")));
	EXPECT_EQ(ErrorOf(TEXT("a[2] = Emptier()")), TEXT("IndexError: Array assignment index out of range"));
	EXPECT_TRUE(RunPython(TEXT("a.extend([1, 2])\na.append(Emptier())")));
	EXPECT_EQ(Evaluate(TEXT("a")), TEXT("[7]"));
	EXPECT_TRUE(RunPython(TEXT("a.extend([1, 2])\nback = []\nfor x in reversed(a):\n    back.append(x)\n    a.clear()")));
	EXPECT_EQ(Evaluate(TEXT("back")), TEXT("[2]"));
}

TEST(PythonSet, ChangesInPlace)
{
	EXPECT_TRUE(RunPython(TEXT("s = t = unreal.Set.cast(int, [5, 1, 4])\ns |= {9}\ns &= {9, 4, 5}\ns -= {4}\ns ^= {5, 7}")));
	EXPECT_EQ(Evaluate(TEXT("(s is t, sorted(s))")), TEXT("(True, [7, 9])"));
	EXPECT_TRUE(
		RunPython(TEXT("s.update([3], (8,))\ns.intersection_update([3, 8, 9], [8, 9])\ns.difference_update([8], 'x' and [])\n"
					   "s.symmetric_difference_update([1])")));
	EXPECT_EQ(Evaluate(TEXT("sorted(s)")), TEXT("[1, 9]"));
	EXPECT_TRUE(RunPython(TEXT("s ^= s\nt.update(s)")));
	EXPECT_EQ(Evaluate(TEXT("s")), TEXT("Set([])"));
	EXPECT_EQ(ErrorOf(TEXT("s |= [1]")), TEXT("TypeError: unsupported operand type(s) for |=: 'Set' and 'list'"));
	EXPECT_EQ(ErrorOf(TEXT("s.update([1], ['x'])")), TEXT("TypeError: expected int, got str"));
	EXPECT_EQ(Evaluate(TEXT("s")), TEXT("Set([])"));
	EXPECT_EQ(ErrorOf(TEXT("s.pop()")), TEXT("KeyError: 'pop from an empty Set'"));
}

TEST(PythonSet, ComparesWithSetsOfBothKinds)
{
	EXPECT_TRUE(RunPython(TEXT("s = unreal.Set.cast(int, [1, 2])")));
	EXPECT_EQ(Evaluate(TEXT("(s == {1, 2}, {1, 2} == s, s == frozenset([1, 2]), s != {1}, s == [1, 2], s == {1, 2, 'x'})")),
		TEXT("(True, True, True, True, False, False)"));
	EXPECT_EQ(Evaluate(TEXT("(s < {1, 2, 3}, s < {1, 2}, s <= {1, 2}, s > {1}, s >= {1, 'x'}, {1} < s)")),
		TEXT("(True, False, True, True, False, True)"));
	EXPECT_EQ(Evaluate(TEXT("(s.issubset([1, 2, 'x']), s.issuperset(['x']), s.isdisjoint(['x', 3]), s.isdisjoint([2]))")),
		TEXT("(True, False, True, False)"));
	EXPECT_EQ(Evaluate(TEXT("({1, 5} | s, {1, 5} - s, s - {1}, sorted(s ^ frozenset([1, 7])), s.union([3], [4]))")),
		TEXT("({1, 2, 5}, {5}, Set([2]), [2, 7], Set([1, 2, 3, 4]))"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Set.cast(str, ['a', 'b']) & {'A'}")), TEXT("Set(['a'])"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Set.cast(int, [1]) == unreal.Map(int, int)")), TEXT("False"));
}

TEST(PythonMap, ViewsFollowTheMap)
{
	EXPECT_TRUE(RunPython(TEXT("m = unreal.Map(str, int)\nk, v, i = m.keys(), m.values(), m.items()\nm['a'] = 1\nm['b'] = 2")));
	EXPECT_EQ(Evaluate(TEXT("(list(k), list(v), list(i), len(k))")), TEXT("(['a', 'b'], [1, 2], [('a', 1), ('b', 2)], 2)"));
	EXPECT_EQ(Evaluate(TEXT("('a' in k, 2 in v, ('b', 2) in i, ('b', 3) in i, k & {'b', 'c'}, k == {'a', 'b'})")),
		TEXT("(True, True, True, False, {'b'}, True)"));
	EXPECT_EQ(Evaluate(TEXT("(list(reversed(k)), list(reversed(i)), list(reversed(m)), k)")),
		TEXT("(['b', 'a'], [('b', 2), ('a', 1)], ['b', 'a'], MapKeys(['a', 'b']))"));
}

TEST(PythonMap, HasTheWholeInterfaceOfDict)
{
	EXPECT_TRUE(RunPython(
		TEXT("m = unreal.Map.cast(str, int, {'a': 1})\nm.setdefault('a', 5)\nm.setdefault('b', 6)\nm.setdefault('c')")));
	EXPECT_EQ(Evaluate(TEXT("m")), TEXT("{'a': 1, 'b': 6, 'c': 0}"));
	EXPECT_EQ(ErrorOf(TEXT("m.setdefault('d', 'x')")), TEXT("TypeError: expected int, got str"));
	EXPECT_EQ(Evaluate(TEXT("(m.popitem(), m.popitem(), m)")), TEXT("(('c', 0), ('b', 6), {'a': 1})"));
	EXPECT_EQ(Evaluate(TEXT("(m | {'b': 2}, {'b': 2} | m, type({} | m).__name__)")),
		TEXT("({'a': 1, 'b': 2}, {'b': 2, 'a': 1}, 'Map')"));
	EXPECT_TRUE(RunPython(TEXT("n = m\nn |= [('z', 26)]\ndel m['a']")));
	EXPECT_EQ(Evaluate(TEXT("(n is m, m, m == {'z': 26}, {'z': 26} == m, m == unreal.Array(int))")),
		TEXT("(True, {'z': 26}, True, True, False)"));
	EXPECT_EQ(ErrorOf(TEXT("m | [('a', 1)]")), TEXT("TypeError: unsupported operand type(s) for |: 'Map' and 'list'"));
	EXPECT_TRUE(RunPython(TEXT("m.clear()")));
	EXPECT_EQ(ErrorOf(TEXT("m.popitem()")), TEXT("KeyError: 'popitem(): Map is empty'"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Map.fromkeys('ab', 1.5)")), TEXT("{'a': 1.5, 'b': 1.5}"));
	EXPECT_EQ(
		ErrorOf(TEXT("unreal.Map.fromkeys([], 1)")), TEXT("ValueError: fromkeys() of no key does not know the type of the keys"));
}

TEST(PythonContainers, RaiseIfTheyGrowOrShrinkWhileWalked)
{
	EXPECT_TRUE(RunPython(TEXT("s = unreal.Set.cast(int, [1, 2, 3])\nm = unreal.Map.cast(int, int, {1: 1, 2: 2})")));
	EXPECT_EQ(ErrorOf(TEXT("for x in s: s.add(x + 10)")), TEXT("RuntimeError: Set changed size during iteration"));
	EXPECT_EQ(ErrorOf(TEXT("for x in m: del m[x]")), TEXT("RuntimeError: Map changed size during iteration"));
	EXPECT_EQ(ErrorOf(TEXT("for k, v in m.items(): m[k + 10] = v")), TEXT("RuntimeError: Map changed size during iteration"));
	EXPECT_EQ(ErrorOf(TEXT("for k in m: m[k] = 5")), TEXT(""));
	EXPECT_TRUE(RunPython(TEXT("i = iter(s)\nnext(i)\ns.pop()\ns.add(99)")));
	EXPECT_EQ(ErrorOf(TEXT("list(i)")), TEXT(""));
}

TEST(PythonContainers, HaveTheNamesOfPythonsOwn)
{
	EXPECT_EQ(Evaluate(TEXT("[sorted(set(dir(b)) - set(dir(c))) for b, c in ")
					  TEXT("((list, unreal.Array), (set, unreal.Set), (dict, unreal.Map))]")),
		TEXT("[[], [], []]"));
	EXPECT_EQ(Evaluate(TEXT("(unreal.Array[str], unreal.Map[str, int])")), TEXT("(unreal.Array[str], unreal.Map[str, int])"));
}

TEST(PythonContainers, AreCollections)
{
	EXPECT_EQ(Evaluate(TEXT("[isinstance(c, getattr(__import__('collections').abc, n)) for c, n in ")
					  TEXT("((unreal.Array(int), 'MutableSequence'), (unreal.Set(int), 'MutableSet'), (unreal.Map(int, int), "
						   "'MutableMapping'))]")),
		TEXT("[True, True, True]"));
}

TEST(PythonContainers, AnArrayMayChangeWhileAValueForItIsLookedAt)
{
	EXPECT_TRUE(RunPython(TEXT("changing = unreal.Array(unreal.PythonTestPlace)\nchanging.append((1, 1))\n"
							   "class Changer:\n"
							   "    def __len__(self):\n        changing.clear()\n        return 2\n"
							   "    def __getitem__(self, index):\n        return 5\n")));
	EXPECT_EQ(ErrorOf(TEXT("changing[0] = Changer()")), TEXT("IndexError: Array assignment index out of range"));
	EXPECT_TRUE(RunPython(TEXT("changing.append(Changer())")));
	EXPECT_EQ(Evaluate(TEXT("[v.to_tuple()[:2] for v in changing]")), TEXT("[(5.0, 5)]"));
}
