#ifndef ORXInstanceListeners_H
#define ORXInstanceListeners_H

class ORXKweInstanceAdapter;

/// What the host does to the listeners of an adapter beyond the adapter's own operations.
class ORXInstanceListeners
{
public:
    static void LetGo(ORXKweInstanceAdapter& ioAdapter);
};

#endif
