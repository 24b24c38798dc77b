#include <nvo/RecyclingListAdapter.h>

RecyclingListAdapter::RecyclingListAdapter() = default;

RecyclingListAdapter::~RecyclingListAdapter() = default;
