#ifndef VIEWSCALESOURCE_H
#define VIEWSCALESOURCE_H

class QObject;

/**
 * What the configuration needs of the panel's view: its zoom (the root item's
 * scale) and an object that emits rootItemScaleChanged(double) when it changes.
 * The view, a layer above, implements it and installs itself in GlobalConfig
 * while it exists.
 */
class ViewScaleSource {
public:
    virtual ~ViewScaleSource() = default;
    virtual double rootItemScale() const = 0;
    /** The object emitting rootItemScaleChanged(double). */
    virtual QObject* scaleNotifier() = 0;
};

#endif // VIEWSCALESOURCE_H
