#pragma once

#include <string>

namespace marlevo {

/// A small drawing in the form that the program writes.
inline const std::string sampleText = R"({
  "version" : 1,
  "canvasWidth" : 1280,
  "canvasHeight" : 720,
  "bgColorR" : 1,
  "bgColorG" : 0.5,
  "bgColorB" : 1,
  "bgColorA" : 1,
  "bgTransparent" : false,
  "layers" : [
    {
      "name" : "Background",
      "isVisible" : true,
      "opacity" : 1,
      "strokes" : [
        {
          "points" : [ 10, 20, 300.5, 240 ],
          "colorR" : 0,
          "colorG" : 0,
          "colorB" : 0,
          "colorA" : 1,
          "lineWidth" : 5,
          "opacity" : 1,
          "isEraser" : false,
          "isFill" : false,
          "shapeType" : "line"
        }
      ]
    },
    {
      "name" : "Image",
      "isVisible" : true,
      "opacity" : 1,
      "imageData" : "iVBORw0KGgo=",
      "strokes" : [ ]
    }
  ]
}
)";

}  // namespace marlevo
