// The comment box of the print dialog: a page of at most BoxLines lines of
// BoxWidth characters that wraps itself after every edit. The real text is
// kept in BoxText with a mark of its own for the line ends the box made, so
// that such a line end can move or go as the text changes, while a line end
// the user typed stays where it is. One text has three forms:
//
//   plain     as stored in PrintComment   typed line end CR LF, no others
//   internal  BoxText                     typed CR LF, automatic CR CR
//   shown     in the box                  both CR LF
//
// The shown and the internal form have the same length, so a caret position
// of the box is also a place in BoxText.
//
// Positions: a caret position counts the characters before the caret (0 at
// the start), as the box tells it; the position Box_FirstDifference gives is
// 1-based (the first character is 1), and 0 there means no difference.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// The text in the internal form, and the limits, characters per line and
// lines; the print dialog sets 100 and 5. They start empty and 0.
inline std::string BoxText;
inline int16_t BoxWidth = 0;
inline int16_t BoxLines = 0;

// Stores the limits and wraps BoxText again at them. A negative limit makes
// both limits 0 and leaves BoxText as it is.
void Box_Init(int16_t width, int16_t lines);

// The plain text with CR CR in front of every character that would run past
// BoxWidth on its line; the result becomes BoxText too.
std::string Box_Wrap(const std::string& plain);

// BoxText in the plain form: every CR goes and every LF becomes CR LF.
std::string Box_Unwrap();

// The internal text as the box shows it: a CR behind a CR becomes LF, so
// the CRs of a run pair up as CR LF.
std::string Box_Show(const std::string& internal);

// Whether the key may be typed at the caret position. Backspace (8) always
// may; Enter (13) puts in CR LF. The key is tried on BoxText behind the
// character after the caret, which so counts twice: one character stricter
// than the true text. Allowed when the wrapped trial has at most BoxLines
// lines, or one more that is empty. BoxText is left as it was.
bool Box_KeyAllowed(int position, int16_t key);

// Merges an edit into BoxText: text is what the box shows after the edit.
// At the first difference from BoxText, the characters text has more are
// put in, or those it has fewer taken out, or at equal lengths the one
// character there is replaced; without a difference BoxText stays. BoxText
// is then wrapped again, shift tells how many characters that added (the
// box moves its caret on by it when it is positive), and the new shown text
// is given back. Nothing is refused, so a paste can make more than BoxLines lines.
std::string Box_Change(const std::string& text, int& shift);

// The number of lines of an internal text. A CR closes a line unless it
// follows a CR, so CR CR and CR LF each end one line; the length is set back
// to 0 by an LF only, so a line behind CR CR counts on from the line before.
// lengths[k] is the length of line k + 1; it starts with 5 places and grows
// by 10 when a line needs one more, the places behind the last line hold 0.
int Box_LineLengths(const std::string& text, std::vector<int>& lengths);

// The first position at which the texts differ, a CR or LF in both counting
// as equal, so the soft line ends of the internal and the shown form match;
// difference is the length of first minus that of second. Equal texts give
// 0 and 0.
int Box_FirstDifference(const std::string& first, const std::string& second, int& difference);
