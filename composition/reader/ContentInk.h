// Goes through content streams to find the box of what they draw, without drawing it: paths by
// their points, texts by their glyphs' boxes, pictures whole.
#pragma once

#include <qpdf/QPDFObjectHandle.hh>
#include <string>
#include <vector>

#include "composition/reader/ContentOperations.h"
#include "composition/reader/InkArea.h"
#include "composition/reader/InkPath.h"
#include "composition/reader/InkWork.h"
#include "composition/reader/TextCursor.h"

namespace cutline {

class ContentInk {
 public:
  struct State {
    QPDFMatrix matrix;  // to the coordinates that the box is told in
    Area clip = kEverywhere;
    StrokeStyle stroke;
    TextState text;
  };

  ContentInk(InkWork& work, QPDFObjectHandle resources, const State& state)
      : mWork(work), mResources(std::move(resources)), mState(state) {}

  // Throws as InkWork does. Once only.
  InkArea ofStream(QPDFObjectHandle stream);
  // The same of a form that is drawn here, with its matrix and within its box.
  InkArea ofForm(QPDFObjectHandle form) const;

 private:
  struct Action;
  static const Action* actionOf(const std::string& name);
  void act(const Operation& operation);

  QPDFObjectHandle resource(const char* kind, const std::string& name);
  static QPDFMatrix matrixOf(const Operation& operation);
  static std::string nameIn(const Operation& operation);

  void paint(const Area& area) { mInk.add(common(mState.clip, area)); }
  void addPoints(const Operation& operation);
  void paintPath(bool isFilled, bool isStroked);
  void endPath();
  void restore();
  void setParameters(const Operation& operation);
  void drawObject(const Operation& operation);
  void drawImage() { paint(moved(mState.matrix, {0, 0, 1, 1})); }

  void setFont(const Operation& operation);
  void useFont(QPDFObjectHandle font, double size);
  void nextLine() { mCursor.moveLine(0, -mState.text.leading); }
  void moveLineAndLead(double across, double up);
  void showText(const Operation& operation, std::size_t at);
  void showTexts(const Operation& operation);
  void showSpacedOnNextLine(const Operation& operation);
  void show(const std::string& codes);

  InkWork& mWork;
  QPDFObjectHandle mResources;
  State mState;
  std::vector<State> mSaved;
  InkPath mPath;
  bool mClipsNext = false;
  TextCursor mCursor;
  InkArea mInk;
};

}  // namespace cutline
