"""The comparison with golden pictures, itself."""

import pytest

import pictures

RED = b"\xff\x00\x00\xff"
GREY = b"\x80\x80\x80\xff"


@pytest.fixture
def folders(tmp_path, monkeypatch):
    monkeypatch.setattr(pictures, "GOLDEN", tmp_path / "golden")
    monkeypatch.setattr(pictures, "DIFFERENT", tmp_path / "different")
    monkeypatch.delenv("KESTRIX_UPDATE_PICTURES", raising=False)
    (tmp_path / "golden").mkdir()
    pictures.write(tmp_path / "golden" / "a.png", pictures.Picture(2, 2, GREY * 4))
    return tmp_path


def test_the_same_picture_passes_and_leaves_nothing(folders):
    pictures.compare(folders / "golden" / "a.png", "a.png")
    assert not (folders / "different").exists()


def test_one_other_pixel_fails_and_is_shown_in_red(folders):
    pictures.write(folders / "new.png", pictures.Picture(2, 2, GREY * 3 + b"\x81\x80\x80\xff"))
    with pytest.raises(AssertionError, match="^1 pixels differ from "):
        pictures.compare(folders / "new.png", "a.png")
    shown = pictures.read(folders / "different" / "a.difference.png")
    assert [shown.pixel(x, y) == tuple(RED) for y in range(2) for x in range(2)] == [False, False, False, True]
    assert pictures.read(folders / "different" / "a.png").pixel(1, 1) == (0x81, 0x80, 0x80, 0xFF)


def test_a_picture_of_another_size_fails(folders):
    pictures.write(folders / "new.png", pictures.Picture(3, 2, GREY * 6))
    with pytest.raises(AssertionError, match="^2 pixels differ from "):
        pictures.compare(folders / "new.png", "a.png")


def test_a_picture_without_a_golden_one_fails(folders):
    with pytest.raises(AssertionError, match="there is no .*b.png; KESTRIX_UPDATE_PICTURES=1 makes it"):
        pictures.compare(folders / "golden" / "a.png", "b.png")


def test_pictures_are_made_anew_on_demand(folders, monkeypatch):
    monkeypatch.setenv("KESTRIX_UPDATE_PICTURES", "1")
    pictures.write(folders / "new.png", pictures.Picture(1, 1, RED))
    pictures.compare(folders / "new.png", "a.png")
    assert pictures.read(folders / "golden" / "a.png").pixel(0, 0) == tuple(RED)
